#ifndef FORMATS_MODELS_FORMATLISTMODELDATA_H
#define FORMATS_MODELS_FORMATLISTMODELDATA_H

#include "formats/formatsglobal.h"

#include <QString>
#include <QVariant>

/*! One output format, such as "MP4", without its presets. */
class VEX_FORMATS_EXPORT FormatListModelData
{
public:
    QString title;
    QString icon;
    QString tag; //!< the category, in lower case

    /*! The fields as "title", "icon" and "tag". */
    [[nodiscard]] QVariantMap toVarMap() const;
};

#endif
