#include "host/commandline/presettable.h"

#include "host/app/console.h"
#include "host/commandline/commandline.h"

#include <algorithm>

QVector<QStringList> presetTable(const QVector<QVariantMap> &presets)
{
    const QString video = QStringLiteral("video");
    const bool hasVideo =
        std::any_of(presets.begin(), presets.end(),
                    [&video](const QVariantMap &preset) { return preset.contains(video); });
    QVector<PresetSetting> columns = presetSettings();
    if (!hasVideo) {
        columns.erase(std::remove_if(columns.begin(), columns.end(),
                                     [&video](const PresetSetting &setting) {
                                         return setting.group == video;
                                     }),
                      columns.end());
    }

    QStringList heading = {CommandLine::tr("Id"), CommandLine::tr("Title"),
                           CommandLine::tr("File")};
    for (const PresetSetting &setting : columns) {
        heading << setting.label;
    }
    QVector<QStringList> rows = {heading};
    for (const QVariantMap &preset : presets) {
        QStringList row = {preset.value(QStringLiteral("id")).toString(),
                           preset.value(QStringLiteral("title")).toString(),
                           preset.value(QStringLiteral("extension")).toString()};
        for (const PresetSetting &setting : columns) {
            row << (preset.contains(setting.group) ? setting.inWords(setting.value(preset))
                                                   : QStringLiteral("-"));
        }
        rows << row;
    }
    return rows;
}

void printPresets(const QVector<QVariantMap> &presets, bool asJson, const QString &none)
{
    if (asJson) {
        QVariantList list;
        std::copy(presets.begin(), presets.end(), std::back_inserter(list));
        Console::printJson(list);
    } else if (presets.isEmpty()) {
        Console::print(none);
    } else {
        Console::printTable(presetTable(presets));
    }
}
