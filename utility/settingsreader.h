#ifndef UTILITY_SETTINGSREADER_H
#define UTILITY_SETTINGSREADER_H

#include "utility/catalogueinspector.h"
#include "utility/presetplaces.h"

#include <QHash>
#include <QVariantMap>

#include <optional>

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
    /*! The settings of a group, a template or a preset itself; unknown keys are passed through. */
    [[nodiscard]] PresetSettings readOwn(const QJsonObject &from, const QString &path);
    /*! The settings of the template of that name; none for an undefined name. */
    [[nodiscard]] PresetSettings readTemplate(const QJsonValue &name, const QString &path);

private:
    struct OptionList
    {
        QJsonArray values;
        CataloguePlace place;
    };
    // An invalid value, whose mistake is already noted, is nothing.
    template <typename Value>
    using Named = QHash<QString, std::optional<Value>>;

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
