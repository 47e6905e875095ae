#ifndef CATALOGUE_OVERLAYPRESET_H
#define CATALOGUE_OVERLAYPRESET_H

#include "utility/cataloguereader.h"

#include <QJsonArray>
#include <QJsonObject>

/*! A preset that an overlay states, in part or in full. */
struct OverlayPreset
{
    QString path;          //!< its place in the file
    QJsonValue own = {};   //!< as the file has it
    QJsonObject base = {}; //!< what the preset starts from, in full; or empty
    PresetPlaces basePlaces = {};

    /*! What the catalogue's reader is given: the base with the own values. Objects are merged key
     *  by key, and null takes a value away. */
    [[nodiscard]] QJsonValue toJson() const;
    /*! Whether the file itself states the value of a key such as "videoParam.encoder"; an element
     *  of a list belongs to the list. */
    [[nodiscard]] bool states(const QString &key) const;
};

/*! Presets that are read as one group of a catalogue's file. */
struct OverlayGroup
{
    QString path;                        //!< its place in the overlay
    QJsonValue own;                      //!< as the file has it
    QVector<OverlayPreset> presets = {}; //!< instead of its own list
};

/*! A preset that is valid, with the places of its values in the overlay and elsewhere. */
struct ReadPreset
{
    QVariantMap values;
    PresetPlaces places;
};

/*! Valid groups with their valid presets, and the mistakes in all of them. */
struct OverlayReading
{
    struct Group
    {
        int index; //!< among those given
        QString icon;
        QVector<ReadPreset> presets;
    };

    QVector<Group> groups;
    QVector<CatalogueMistake> mistakes;
};

/*! Reads the groups as a catalogue's file named \a source, of which \a file has the rest. */
[[nodiscard]] OverlayReading readOverlayGroups(const QString &source, const QJsonObject &file,
                                               const QVector<OverlayGroup> &groups);

#endif
