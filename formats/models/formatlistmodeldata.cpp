#include "formats/models/formatlistmodeldata.h"

QVariantMap FormatListModelData::toVarMap() const
{
    return {
        {QStringLiteral("title"), title},
        {QStringLiteral("icon"), icon},
        {QStringLiteral("tag"), tag},
    };
}
