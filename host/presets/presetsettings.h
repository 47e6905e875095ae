#ifndef PRESETS_PRESETSETTINGS_H
#define PRESETS_PRESETSETTINGS_H

#include <QCoreApplication>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QVector>

/*! An adjustable setting of a preset: its place in the preset's map, and its names. */
struct PresetSetting
{
    Q_DECLARE_TR_FUNCTIONS(PresetSetting)
public:
    QString label;
    QString option;   //!< of "user add" and "user change", and in a file of presets
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

/*! What a preset can say of its video besides its settings; the screens don't offer it. */
struct PresetDetail
{
    QString name;    //!< in a file of presets
    QString key;     //!< in the converter's "videoParam"
    QString pattern; //!< a regular expression for the whole value; empty: a number
    double least = 0;
    double most = 0;

    [[nodiscard]] bool accepts(const QString &value) const;
};

[[nodiscard]] const QVector<PresetDetail> &presetDetails();

/*! The values of a preset by the names of its settings and details. All settings that apply are
 *  there, and only the details that the preset has. */
using PresetValues = QMap<QString, QString>;

/*! The values of a preset map, as FormatDetailModelData::toVarMap() makes it. */
[[nodiscard]] PresetValues valuesOf(const QVariantMap &preset);
/*! The preset map with other values; a missing detail is left out. */
[[nodiscard]] QVariantMap withValues(QVariantMap preset, const PresetValues &values);
/*! The names of all settings and details, in the order in which they are listed. */
[[nodiscard]] QStringList valueNames();
/*! A value in words that suit its setting; a detail as it is, or "-" where it is missing. */
[[nodiscard]] QString valueInWords(const QString &name, const QString &value);

#endif
