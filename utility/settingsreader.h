#ifndef UTILITY_SETTINGSREADER_H
#define UTILITY_SETTINGSREADER_H

#include "utility/catalogueinspector.h"

#include <QHash>
#include <QVariantMap>

#include <optional>

/*! By key, "id" or "videoParam.encoder": where a preset's value stands, inherited or not. */
using PresetPlaces = QHash<QString, CataloguePlace>;

/*! What a group, a template or a preset states, and where. */
struct PresetSettings
{
    QVariantMap values;
    PresetPlaces places;

    /*! What \a over states wins, key by key. */
    void add(const PresetSettings &over);
};

/*! Reads settings, and the lists and templates whose names they may use from then on. */
class SettingsReader
{
public:
    explicit SettingsReader(CatalogueInspector &inspector)
        : m_inspector(inspector)
    {}

    void readLists(const QJsonObject &lists);
    void readTemplates(const QJsonObject &templates);
    /*! The settings of a group or a preset, over those of the template that it names. */
    [[nodiscard]] PresetSettings readWithTemplate(QJsonObject from, const QString &path);

private:
    /*! A list of values, and where it stands. */
    struct OptionList
    {
        QJsonArray values;
        CataloguePlace place;
    };
    // Without a value where that is wrong, which is already named where it stands.
    template <typename Value>
    using Named = QHash<QString, std::optional<Value>>;

    PresetSettings readSettings(const QJsonObject &from, const QString &path);
    void readBlock(QLatin1String block, const QJsonValue &value, const QString &path,
                   PresetSettings &settings);
    OptionList readOptions(const QJsonValue &value, QJsonValue::Type type, const QString &path);
    QVariantList shared(const QJsonArray &array);

    /*! The value that a name stands for; empty and refused where there is none. */
    template <typename Value>
    Value named(const Named<Value> &values, const QString &name, const QString &refusal,
                const QString &path);

    CatalogueInspector &m_inspector;
    Named<OptionList> m_lists;
    Named<PresetSettings> m_templates;
    QHash<QByteArray, QVariantList> m_shared;
};

#endif
