#include "tests/formats/fakecatalogue.h"

#include <formatcodecapi.h>

FakeCatalogue &FakeCatalogue::served()
{
    static FakeCatalogue catalogue;
    return catalogue;
}

FormatCodecApi *FormatCodecApi::getInstance()
{
    static FormatCodecApi api;
    return &api;
}

QList<QVariant> FormatCodecApi::getExportCategoryLists()
{
    FakeCatalogue::served().calls.append(QStringLiteral("categories"));
    return FakeCatalogue::served().categories;
}

QList<QVariant> FormatCodecApi::getExportGroupLists(const QString &category)
{
    FakeCatalogue::served().calls.append(QStringLiteral("groups ") + category);
    QVariantList maps;
    for (const FakeCatalogue::Group &group : FakeCatalogue::served().groups.value(category)) {
        maps.append(group.map);
    }
    return maps;
}

QList<QVariant> FormatCodecApi::getExportGroupContents(const QMap<QString, QVariant> &group)
{
    FakeCatalogue::served().calls.append(QStringLiteral("contents ") +
                                         group.value(QStringLiteral("name")).toString());
    for (const QList<FakeCatalogue::Group> &groups : qAsConst(FakeCatalogue::served().groups)) {
        for (const FakeCatalogue::Group &candidate : groups) {
            if (candidate.map == group) {
                return candidate.contents;
            }
        }
    }
    return {};
}
