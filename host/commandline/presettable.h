#ifndef COMMANDLINE_PRESETTABLE_H
#define COMMANDLINE_PRESETTABLE_H

#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QVector>

/*! A setting of a preset that can be chosen: where it stands in the preset's map and what it is
 * called. */
struct PresetSetting
{
    QString label;
    QString option;   //!< of "user add" and "user change"
    QString unit;     //!< of the option's value
    QString group;    //!< "video" or "audio"
    QString key;      //!< in the group: the chosen value
    QString listKey;  //!< in the group: the values offered
    QString paramKey; //!< in the map that makes or changes a user's preset
    QString zeroWord; //!< what "0" means
    QString help;     //!< of the option

    [[nodiscard]] QString value(const QVariantMap &preset) const;
    /*! The values offered, as texts, without empty ones. */
    [[nodiscard]] QStringList choices(const QVariantMap &preset) const;
    /*! A value in words: "0" and no value are the zero word. */
    [[nodiscard]] QString inWords(const QString &value) const;
};

/*! All settings: those of the picture, then those of the sound. */
[[nodiscard]] const QVector<PresetSetting> &presetSettings();

/*! Rows for Console::printTable(), the heading first; the picture's columns only where a preset has
 * one. */
[[nodiscard]] QVector<QStringList> presetTable(const QVector<QVariantMap> &presets);

#endif
