#ifndef CHECK_CHECKEDPRESET_H
#define CHECK_CHECKEDPRESET_H

#include "host/check/mistakecollector.h"
#include "utility/cataloguereader.h"
#include "utility/cataloguesettings.h"

#include <QStringList>

/*! A preset of the catalogue, whose mistakes are noted at the places of its values. */
class CheckedPreset
{
public:
    CheckedPreset(const QVariantMap &preset, const PresetPlaces &places,
                  MistakeCollector &collector);

    /*! The text of a key such as "title", empty where the preset has none. */
    [[nodiscard]] QString text(const QString &key) const;
    [[nodiscard]] QString id() const { return text(QStringLiteral("id")); }
    [[nodiscard]] QString extension() const { return text(QStringLiteral("extension")); }
    /*! The chosen value; invalid if the preset doesn't have the setting. */
    [[nodiscard]] QVariant chosen(const CatalogueSetting &setting) const;
    /*! The value of a detail, invalid where the preset has none. */
    [[nodiscard]] QVariant stated(const CatalogueDetail &detail) const;
    [[nodiscard]] QStringList offered(const CatalogueSetting &setting) const;

    /*! Notes a mistake in the value of a key such as "id" or "videoParam.encoder". If it conflicts
     *  with the value of \a otherKey, which is set elsewhere, the mistake names the preset. */
    void note(const QString &key, const QString &reason, const QString &otherKey = {});
    /*! Likewise for the offered value at \a index. */
    void noteOffered(const CatalogueSetting &setting, int index, const QString &reason,
                     const QString &otherKey = {});

    /*! Notes a value of the key that a regular expression doesn't match as a whole. */
    void expectForm(const QString &key, const QString &value, const QString &pattern);

private:
    [[nodiscard]] QString holderOf(const QString &key) const;
    [[nodiscard]] QString nameWhereApart(const QString &key, const QString &otherKey) const;

    const QVariantMap m_preset;
    const PresetPlaces m_places;
    MistakeCollector &m_collector;
};

#endif
