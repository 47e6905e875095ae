#ifndef COMMANDLINE_PRESETTABLE_H
#define COMMANDLINE_PRESETTABLE_H

#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QVector>

/*! An adjustable setting of a preset: its place in the preset's map, and its names. */
struct PresetSetting
{
    QString label;
    QString option;   //!< of "user add" and "user change"
    QString unit;     //!< of the option's value
    QString group;    //!< "video" or "audio"
    QString key;      //!< in the group: the chosen value
    QString listKey;  //!< in the group: the values offered
    QString paramKey; //!< in the map that makes or changes a user's preset
    QString zeroWord; //!< the meaning of "0"
    QString help;     //!< of the option

    [[nodiscard]] QString value(const QVariantMap &preset) const;
    /*! The values offered, without empty ones. */
    [[nodiscard]] QStringList choices(const QVariantMap &preset) const;
    /*! The value as people say it: the zero word for "0" and an empty one, a video bitrate as the
     *  most that it is. */
    [[nodiscard]] QString inWords(const QString &value) const;
};

/*! All settings, video before audio. */
[[nodiscard]] const QVector<PresetSetting> &presetSettings();

/*! Rows for Console::printTable(), the heading first; video columns only if a preset has video. */
[[nodiscard]] QVector<QStringList> presetTable(const QVector<QVariantMap> &presets);

#endif
