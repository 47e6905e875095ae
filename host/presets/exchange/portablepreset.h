#ifndef PRESETS_EXCHANGE_PORTABLEPRESET_H
#define PRESETS_EXCHANGE_PORTABLEPRESET_H

#include "host/presets/presetsettings.h"

#include <QString>
#include <QVector>

/*! What becomes of a setting that another program's preset has. */
struct Finding
{
    enum Verdict { Kept, Approximated, Lost };

    QString setting; //!< as the file names it
    QString value;
    Verdict verdict = Kept;
    QString text; //!< what is done instead; empty where it is kept
};

/*! A preset as it travels between machines, not yet one of the user's. */
struct PortablePreset
{
    QString title;
    QString note;
    QString base;        //!< id of a catalogue's preset; empty: the first of the format that fits
    QString format;      //!< title of the base's format; empty: any that writes the extension
    QString extension;   //!< of the results
    PresetValues values; //!< what differs from the base; all of them if it has a base
    QVector<Finding> findings = {}; //!< of another program's preset, in the file's order

    void keep(const QString &setting, const QString &value)
    {
        findings.append({setting, value, Finding::Kept, {}});
    }
    void approximate(const QString &setting, const QString &value, const QString &text)
    {
        findings.append({setting, value, Finding::Approximated, text});
    }
    void lose(const QString &setting, const QString &value, const QString &text)
    {
        findings.append({setting, value, Finding::Lost, text});
    }
};

/*! A preset that can't be read, or what is wrong with a file as a whole. */
struct RefusedPreset
{
    QString title; //!< or its place in the file
    QString reason;
};

/*! What a file of presets holds. */
struct PortablePresets
{
    QVector<PortablePreset> presets;
    QVector<RefusedPreset> refused;
};

#endif
