#ifndef UTILITY_CATALOGUESETTINGS_H
#define UTILITY_CATALOGUESETTINGS_H

#include "utilityglobal.h"

#include <QJsonValue>
#include <QLatin1String>
#include <QString>

#include <array>

/*! The blocks of a preset, each an object of settings. */
namespace CatalogueBlock {
const QLatin1String videoParam("videoParam");
const QLatin1String videoOptions("videoOptions");
const QLatin1String audioParam("audioParam");
const QLatin1String audioOptions("audioOptions");
const std::array<QLatin1String, 4> all{videoParam, videoOptions, audioParam, audioOptions};
} // namespace CatalogueBlock

/*! A string of a preset outside its blocks. */
struct CatalogueText
{
    QLatin1String key;
    QLatin1String pattern; //!< a regular expression for the whole string; empty: anything but ""
    bool isInherited;      //!< can also be in a group or a template
    bool isRequired = true;

    [[nodiscard]] VEX_UTILITY_EXPORT static const std::array<CatalogueText, 6> &all();
};

/*! What a preset may say of its video besides its settings; the screens don't offer it. */
struct CatalogueDetail
{
    QLatin1String key;     //!< in "videoParam"
    QLatin1String pattern; //!< a regular expression of the whole text; empty: a bitrate in kbps
    QLatin1String meaning; //!< one line

    [[nodiscard]] VEX_UTILITY_EXPORT static const std::array<CatalogueDetail, 11> &all();
    /*! The detail with that key, nullptr for none. */
    [[nodiscard]] static const CatalogueDetail *find(const QString &key);
    [[nodiscard]] VEX_UTILITY_EXPORT QJsonValue::Type type() const;
};

/*! A setting of a preset: its chosen value and the offered ones. */
struct CatalogueSetting
{
    enum Id {
        VideoEncoder,
        Resolution,
        FrameRate,
        VideoBitrate,
        VideoLevels,
        AudioEncoder,
        Channels,
        SampleRate,
        AudioBitrate,
        Count
    };
    enum Form { CodecName, Size, Number, WholeNumber };

    Id id;
    QLatin1String param;   //!< the block of the chosen value
    QLatin1String key;     //!< of the chosen value; empty if nothing is chosen
    QLatin1String options; //!< the block of the offered values
    QLatin1String listKey; //!< of the offered values
    Form form;
    QLatin1String meaning; //!< one line, with the unit
    int least = 0;         //!< apart from 0, which keeps the source's value; sizes: of each side
    int most = 0;
    int length = 0; //!< of the list; 0: any

    [[nodiscard]] VEX_UTILITY_EXPORT static const std::array<CatalogueSetting, Count> &all();
    [[nodiscard]] VEX_UTILITY_EXPORT static const CatalogueSetting &of(Id id);
    /*! The setting with that key in that block; null if there is none. */
    [[nodiscard]] static const CatalogueSetting *find(QLatin1String block, const QString &key);
    /*! Its key in that block; empty if it has none there. */
    [[nodiscard]] VEX_UTILITY_EXPORT QLatin1String keyIn(QLatin1String block) const;

    /*! "videoParam.encoder" and "videoOptions.encoderList" */
    [[nodiscard]] VEX_UTILITY_EXPORT QString paramPath() const;
    [[nodiscard]] VEX_UTILITY_EXPORT QString optionsPath() const;

    /*! The JSON type of the value, and of each value in the list. */
    [[nodiscard]] VEX_UTILITY_EXPORT QJsonValue::Type type() const;
    /*! A regular expression for a whole codec name or size; empty for numbers. */
    [[nodiscard]] VEX_UTILITY_EXPORT QString pattern() const;
    /*! Whether a value, as a string, has the right form and is within the bounds. */
    [[nodiscard]] VEX_UTILITY_EXPORT bool accepts(const QString &value) const;
    /*! What accepts() takes, in words that follow "must be". */
    [[nodiscard]] VEX_UTILITY_EXPORT QString acceptedText() const;
};

#endif
