#ifndef UTILITY_SETTINGSREADER_H
#define UTILITY_SETTINGSREADER_H

#include "utility/catalogueinspector.h"

#include <QHash>
#include <QVariantMap>

#include <optional>

/*! The place of each value of a preset, inherited or not, by key ("id" or "videoParam.encoder"). */
using PresetPlaces = QHash<QString, CataloguePlace>;

/*! What a group, a template or a preset states, and where. */
struct PresetSettings
{
    QVariantMap values;
    PresetPlaces places;

    /*! Merges \a over, whose values win, key by key. */
    void add(const PresetSettings &over);
};

/*! Reads settings, and the lists and templates that later settings can refer to by name. */
class SettingsReader
{
public:
    explicit SettingsReader(CatalogueInspector &inspector)
        : m_inspector(inspector)
    {}

    void readLists(const QJsonObject &lists);
    void readTemplates(const QJsonObject &templates);
    /*! The settings of a group or a preset, merged over those of its template. */
    [[nodiscard]] PresetSettings readWithTemplate(QJsonObject from, const QString &path);

private:
    struct OptionList
    {
        QJsonArray values;
        CataloguePlace place;
    };
    // An invalid value, whose mistake is already noted, is nothing.
    template <typename Value>
    using Named = QHash<QString, std::optional<Value>>;

    PresetSettings readSettings(const QJsonObject &from, const QString &path);
    void readBlock(QLatin1String block, const QJsonValue &value, const QString &path,
                   PresetSettings &settings);
    OptionList readOptions(const QJsonValue &value, QJsonValue::Type type, const QString &path);
    QVariantList shared(const QJsonArray &array);

    /*! The value of that name; empty, and refused, if there is none. */
    template <typename Value>
    Value named(const Named<Value> &values, const QString &name, const QString &refusal,
                const QString &path);

    CatalogueInspector &m_inspector;
    Named<OptionList> m_lists;
    Named<PresetSettings> m_templates;
    QHash<QByteArray, QVariantList> m_shared;
};

#endif
