#ifndef TESTS_FORMATS_MODELS_PLAINCATALOGUE_H
#define TESTS_FORMATS_MODELS_PLAINCATALOGUE_H

#include "formats/models/formatlistmodel.h"

#include <QMap>
#include <QVector>

#include <algorithm>

/*!
 * Formats and their presets, where every lookup is a linear search: the reference for the models'
 * lookups.
 */
struct PlainCatalogue
{
    using Presets = QVector<FormatDetailModelData>;

    static constexpr int noList = -1;

    QVector<FormatListModelData> formats;
    QVector<Presets> lists;          //!< every preset list ever made
    QMap<QString, int> listsByTitle; //!< into lists; noList under a title that holds null

    static int rowOfId(const Presets &presets, const QString &id)
    {
        const auto row = std::find_if(presets.cbegin(), presets.cend(),
                                      [&id](const auto &preset) { return preset.id == id; });
        return row == presets.cend() ? -1 : int(row - presets.cbegin());
    }

    int rowOfTitle(const QString &title) const
    {
        const auto row =
            std::find_if(formats.cbegin(), formats.cend(),
                         [&title](const auto &format) { return format.title == title; });
        return row == formats.cend() ? -1 : int(row - formats.cbegin());
    }

    bool hasId(const QString &title, const QString &id) const
    {
        const int list = listsByTitle.value(title, noList);
        return list != noList && rowOfId(lists.at(list), id) >= 0;
    }

    bool containId(const QString &id) const
    {
        return std::any_of(listsByTitle.keyBegin(), listsByTitle.keyEnd(),
                           [&](const QString &title) { return hasId(title, id); });
    }

    QString getGetClass(const QString &id) const
    {
        const auto title = std::find_if(listsByTitle.keyBegin(), listsByTitle.keyEnd(),
                                        [&](const QString &key) { return hasId(key, id); });
        return title == listsByTitle.keyEnd() ? QString() : *title;
    }

    /*! The first format whose presets have this id; an empty one if there is none. */
    FormatListModelData formatOfId(const QString &id) const
    {
        const auto format =
            std::find_if(formats.cbegin(), formats.cend(),
                         [&](const auto &candidate) { return hasId(candidate.title, id); });
        return format == formats.cend() ? FormatListModelData() : *format;
    }

    /*! Adds a format and a new list; returns the list's index in lists. */
    int addFormat(int row, const FormatListModelData &format)
    {
        formats.insert(row, format);
        lists.append(Presets());
        listsByTitle.insert(format.title, lists.size() - 1);
        return lists.size() - 1;
    }

    void deleteFormat(int row)
    {
        listsByTitle.remove(formats.at(row).title);
        formats.remove(row);
    }

    /*! The side effect of making nested lists. */
    void insertNullForMissingTitles()
    {
        for (const FormatListModelData &format : qAsConst(formats)) {
            if (!listsByTitle.contains(format.title)) {
                listsByTitle.insert(format.title, noList);
            }
        }
    }
};

#endif
