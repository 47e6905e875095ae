#ifndef WINDOW_PRESETEXCHANGE_H
#define WINDOW_PRESETEXCHANGE_H

#include "host/presets/exchange/presetimport.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>
#include <QVector>

class Presets;

/*! Brings presets in from files and writes them to files. Nothing is imported before the user has
 *  seen what would become of it. */
class PresetExchange : public QObject
{
    Q_OBJECT

public:
    /*! What happens to a preset whose title another one of the user's has, in the order of the
     *  dialog's choices. */
    enum Conflict { KeepBoth, Replace, Skip };
    Q_ENUM(Conflict)

    PresetExchange(PresetStore &store, Presets &presets, QObject *parent = nullptr);

    /*! Previews the files of presets among these, and returns the others. */
    Q_INVOKABLE QList<QUrl> takePresetFiles(const QList<QUrl> &urls);
    /*! Lets the user choose files of presets. */
    Q_INVOKABLE void chooseFiles() { Q_EMIT filesWanted(); }
    /*! Lets the user choose where to write presets of the user's; without ids, all of them. */
    Q_INVOKABLE void chooseTarget(const QStringList &ids = {});

    /*! Reads the files, and shows what would become of their presets. */
    void preview(const QStringList &paths);
    /*! Imports what was previewed last, without what is refused. */
    Q_INVOKABLE void importPresets(Conflict conflict);
    /*! Writes these presets of the user's to a file, which is replaced. */
    void exportPresets(const QStringList &ids, const QString &path);

Q_SIGNALS:
    void filesWanted();
    /*! \a name is the proposed one of the file. */
    void targetWanted(const QStringList &ids, const QString &name);
    /*! "presets" holds each preset's "title", "format", "state" ("new", "same", "conflict" or
     *  "refused"), its "reason" or "", and what is "approximated" and "lost", a line each;
     *  "importable" is how many are new or conflicting. */
    void previewed(const QVariantMap &info);
    void imported(int count);
    /*! One line for the user about what has been done. */
    void told(const QString &line);
    /*! One line for the user about what can't be done. */
    void refused(const QString &line);

private:
    PresetStore &m_store;
    Presets &m_presets;
    QVector<PlannedImport> m_plan;
};

#endif
