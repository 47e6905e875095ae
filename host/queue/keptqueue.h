#ifndef QUEUE_KEPTQUEUE_H
#define QUEUE_KEPTQUEUE_H

#include "host/convert/chosentracks.h"
#include "host/error.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QMap>
#include <QStringList>
#include <QVector>

/*! A file of a list, as it is kept when the program ends. */
struct KeptTask
{
    enum Status { Unconverted, Interrupted, Converted, Failed, Stopped };

    QString source;              //!< absolute
    QString subfolder = {};      //!< of the source, below the folder that was added
    QStringList ownFormats = {}; //!< ids of the presets chosen for it, the last choice last
    QString format = {};         //!< id of the preset that it has or was converted with
    QString formatCaption = {};
    double start = 0; //!< seconds
    double end = 0;   //!< seconds; 0: the source's end
    ChosenTracks tracks = {};
    Status status = Unconverted;
    QString error = {};     //!< Failed: why
    QString target = {};    //!< Converted: the new file
    qint64 targetBytes = 0; //!< Converted: its size; 0: unknown
    QString note = {};      //!< Converted: what the new file lacks
};

/*! The lists of all pages, by the page's name. */
struct KeptQueue
{
    Q_DECLARE_TR_FUNCTIONS(KeptQueue)
public:
    QMap<QString, QVector<KeptTask>> pages;

    /*! An error says why \a json can't be used. An entry without a source is left out. */
    [[nodiscard]] static Result<KeptQueue> fromJson(const QByteArray &json);
    /*! Paths keep every byte, even if they are not valid UTF-8. */
    [[nodiscard]] QByteArray toJson() const;
};

#endif
