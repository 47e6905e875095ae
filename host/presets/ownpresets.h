#ifndef PRESETS_OWNPRESETS_H
#define PRESETS_OWNPRESETS_H

#include "host/error.h"
#include "host/presets/presetnotes.h"
#include "host/presets/presetsettings.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QVariantMap>

class FormatDetailModel;
class FormatsProxy;

/*! A user's preset in full, to be kept and put back. */
struct OwnPreset
{
    QJsonObject format; //!< "title", "icon" and "tag" of its format
    int row = 0;        //!< among the user's presets of the format
    QJsonObject record; //!< as the library saves it
    PresetNote note;

    /*! Whether the content is the same, wherever it stands. */
    [[nodiscard]] bool isSameAs(const OwnPreset &other) const;
    [[nodiscard]] QString title() const;
};

/*! The user's presets, with what the library's operations don't reach: values that no screen
 *  offers, their notes and their order. Nothing is saved here. */
class OwnPresets
{
    Q_DECLARE_TR_FUNCTIONS(OwnPresets)

public:
    OwnPresets(FormatsProxy &formats, PresetNotes &notes)
        : m_formats(formats)
        , m_notes(notes)
    {}

    /*! All of them, by id. */
    [[nodiscard]] QMap<QString, OwnPreset> all() const;
    /*! Ids of the presets of one format, in their order. */
    [[nodiscard]] QStringList idsOf(const QString &className) const;

    /*! Adds a preset like \a base with other values; a missing detail is left out, and a value that
     *  the base doesn't offer is offered by the new preset. Returns the new id, empty if \a base is
     *  no preset of \a className. */
    QString add(const QString &className, const QVariantMap &base, const QString &title,
                const PresetValues &values);
    /*! Gives the preset \a id another title and other values, in the same way. */
    void change(const QString &className, const QString &id, const QString &title,
                const PresetValues &values);
    void remove(const QString &className, const QString &id);

    /*! Puts a preset in the place of the one with its id, or back in its row. */
    [[nodiscard]] Result<> put(const OwnPreset &preset);
    /*! Sorts the user's presets of a format: \a ids has each of them once. */
    void sort(const QString &className, const QStringList &ids);

    /*! The preset's base as the catalogue has it now; empty if that is gone or unknown. */
    [[nodiscard]] QVariantMap baseOf(const QString &id) const;

private:
    void setDetails(FormatDetailModel &list, const QString &id, const PresetValues &values);

    FormatsProxy &m_formats;
    PresetNotes &m_notes;
};

#endif
