#ifndef TESTS_FORMATS_MODELS_RANDOMWALK_H
#define TESTS_FORMATS_MODELS_RANDOMWALK_H

#include "tests/formats/models/modelobservers.h"
#include "tests/formats/models/plaincatalogue.h"
#include "tests/formats/models/presetsamples.h"

#include <QCoreApplication>
#include <QPointer>

#include <random>

/*! Applies the same random operations to a model and to a plain catalogue and compares the two. */
class RandomWalk
{
    Q_DISABLE_COPY(RandomWalk)

public:
    explicit RandomWalk(unsigned seed)
        : m_random(seed)
    {
        guard(m_model);
    }

    /*! Performs one operation and returns its name. */
    QString step()
    {
        const QVector<Operation> &bag = operationsByWeight();
        m_changedList = PlainCatalogue::noList;
        return (this->*bag.at(below(bag.size())))();
    }

    /*! The first lookup on which model and plain catalogue disagree; empty if there is none. */
    QString disagreement() const
    {
        for (const QString &id : ids()) {
            const FormatListModelData expected = m_plain.formatOfId(id);
            if (m_model.containId(id) != m_plain.containId(id)) {
                return QStringLiteral("containId(%1)").arg(id);
            }
            if (m_model.getGetClass(id) != m_plain.getGetClass(id)) {
                return QStringLiteral("getGetClass(%1)").arg(id);
            }
            if (m_model.getTagName(id) != expected.tag) {
                return QStringLiteral("getTagName(%1)").arg(id);
            }
            if (m_model.getIcon(id) != expected.icon) {
                return QStringLiteral("getIcon(%1)").arg(id);
            }
        }
        for (const QString &title : titles()) {
            if (m_model.findModelInfoIndex(title) != m_plain.rowOfTitle(title)) {
                return QStringLiteral("findModelInfoIndex(%1)").arg(title);
            }
            if (m_model.isExist(title) != (m_plain.rowOfTitle(title) >= 0)) {
                return QStringLiteral("isExist(%1)").arg(title);
            }
            const int list = m_plain.listsByTitle.value(title, PlainCatalogue::noList);
            if (m_model.formatDetailModel(title) !=
                (list == PlainCatalogue::noList ? nullptr : m_lists.at(list).data())) {
                return QStringLiteral("formatDetailModel(%1)").arg(title);
            }
        }
        if (m_model.rowCount() != m_plain.formats.size()) {
            return QStringLiteral("rowCount()");
        }
        for (int row = 0; row < m_plain.formats.size(); ++row) {
            FormatListModelData read;
            if (!m_model.getModelInfoByIndex(row, read) ||
                read.toVarMap() != m_plain.formats.at(row).toVarMap()) {
                return QStringLiteral("row %1").arg(row);
            }
        }
        return m_changedList == PlainCatalogue::noList ? QString() : disagreementIn(m_changedList);
    }

private:
    static const QStringList &titles()
    {
        static const QStringList all{QStringLiteral("AVI"),        QStringLiteral("MP4"),
                                     QStringLiteral("MP3"),        QStringLiteral("mp4"),
                                     QStringLiteral("ä"),          QString(),
                                     QStringLiteral("never added")};
        return all;
    }

    static const QStringList &ids()
    {
        static const QStringList all{QStringLiteral("1001"), QStringLiteral("1002"),
                                     QStringLiteral("a"),    QStringLiteral("b"),
                                     QStringLiteral("B"),    QString(),
                                     QStringLiteral("x_1"),  QStringLiteral("never added")};
        return all;
    }

    using Operation = QString (RandomWalk::*)();

    static const QVector<Operation> &operationsByWeight()
    {
        static const QVector<Operation> bag = [] {
            const QPair<int, Operation> weighted[] = {
                {10, &RandomWalk::addFormat},          {6, &RandomWalk::deleteFormat},
                {3, &RandomWalk::deleteFormatByTitle}, {6, &RandomWalk::updateFormat},
                {6, &RandomWalk::writeFormatRole},     {5, &RandomWalk::moveFormat},
                {3, &RandomWalk::deletePresetList},    {2, &RandomWalk::listNested},
                {2, &RandomWalk::deleteReleasedLists}, {1, &RandomWalk::clearPresetLists},
                {1, &RandomWalk::clearFormats},        {40, &RandomWalk::addPreset},
                {12, &RandomWalk::deletePreset},       {8, &RandomWalk::deletePresetById},
                {25, &RandomWalk::updatePreset},       {4, &RandomWalk::writePresetRole},
                {2, &RandomWalk::clearPresets},
            };
            QVector<Operation> operations;
            for (const auto &[weight, operation] : weighted) {
                operations.append(QVector<Operation>(weight, operation));
            }
            return operations;
        }();
        return bag;
    }

    int below(int bound) { return int(m_random() % unsigned(bound)); }
    bool oneIn(int count) { return below(count) == 0; }
    // The last one is never added.
    const QString &anyOf(const QStringList &texts) { return texts.at(below(texts.size() - 1)); }
    int anyRow(int rows) { return below(rows + 2) - 1; } // sometimes just outside

    FormatListModelData anyFormat()
    {
        const int serial = ++m_serial;
        return {anyOf(titles()), QStringLiteral("icon %1").arg(serial),
                QStringLiteral("tag %1").arg(serial)};
    }

    FormatDetailModelData anyPreset()
    {
        FormatDetailModelData preset = presetWithId(anyOf(ids()), oneIn(2));
        preset.title = QStringLiteral("preset %1").arg(++m_serial);
        return preset;
    }

    // Usually a list that can be found; lists that were replaced or released can change too.
    int anyLivingList()
    {
        QVector<int> living;
        for (int list = 0; list < m_lists.size(); ++list) {
            if (m_lists.at(list)) {
                living.append(list);
            }
        }
        const QVector<int> found = m_plain.listsByTitle.values().toVector();
        const QVector<int> &lists = found.isEmpty() || oneIn(4) ? living : found;
        m_changedList = lists.isEmpty() ? PlainCatalogue::noList : lists.at(below(lists.size()));
        return m_changedList;
    }

    QString addFormat()
    {
        const FormatListModelData data = anyFormat();
        const bool atHead = oneIn(2);
        m_plain.addFormat(atHead ? 0 : m_plain.formats.size(), data);
        atHead ? m_model.addModeInfoAtHead(data) : m_model.addModeInfo(data);
        m_lists.append(m_model.formatDetailModel(data.title));
        guard(*m_lists.constLast());
        return QStringLiteral("addFormat %1").arg(data.title);
    }

    QString deleteFormat()
    {
        const int row = anyRow(m_plain.formats.size());
        if (m_model.delModeInfo(row)) {
            m_plain.deleteFormat(row);
        }
        return QStringLiteral("deleteFormat %1").arg(row);
    }

    QString deleteFormatByTitle()
    {
        const QString title = anyOf(titles());
        const int row = m_plain.rowOfTitle(title);
        if (m_model.delModelInfoByKey(title)) {
            m_plain.deleteFormat(row);
        }
        return QStringLiteral("deleteFormatByTitle %1").arg(title);
    }

    QString updateFormat()
    {
        const int row = anyRow(m_plain.formats.size());
        const FormatListModelData data = anyFormat();
        if (m_model.updateModeInfo(row, data)) {
            m_plain.formats[row] = data;
        }
        return QStringLiteral("updateFormat %1 %2").arg(row).arg(data.title);
    }

    QString writeFormatRole()
    {
        const QString title = anyOf(titles());
        const FormatListModelData data = anyFormat();
        const int row = m_plain.rowOfTitle(title);
        const int role = FormatListModel::TitleRole + below(3);
        const QString texts[] = {data.title, data.icon, data.tag};
        const QString &text = texts[role - FormatListModel::TitleRole];
        if (m_model.setRoleValue(FormatListModel::InvitationRoles(role), title, text)) {
            FormatListModelData &expected = m_plain.formats[row];
            QString *const fields[] = {&expected.title, &expected.icon, &expected.tag};
            *fields[role - FormatListModel::TitleRole] = text;
        }
        return QStringLiteral("writeFormatRole %1 %2 %3").arg(role).arg(title, text);
    }

    QString moveFormat()
    {
        const int rows = m_plain.formats.size();
        const int from = anyRow(rows);
        const int to = anyRow(rows);
        m_model.moveDrag(from, to);
        if (from >= 0 && from < rows && to >= 0 && to < rows) {
            m_plain.formats.move(from, to);
        }
        return QStringLiteral("moveFormat %1 %2").arg(from).arg(to);
    }

    QString deletePresetList()
    {
        const QString title = anyOf(titles());
        m_model.delDetailModel(title);
        m_plain.listsByTitle.remove(title);
        return QStringLiteral("deletePresetList %1").arg(title);
    }

    QString listNested()
    {
        m_model.toVariantList();
        m_plain.insertNullForMissingTitles();
        return QStringLiteral("listNested");
    }

    QString deleteReleasedLists()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return QStringLiteral("deleteReleasedLists");
    }

    QString clearPresetLists()
    {
        m_model.clearDetailModel();
        m_plain.listsByTitle.clear();
        return QStringLiteral("clearPresetLists");
    }

    QString clearFormats()
    {
        m_model.clearModeInfo();
        m_plain.formats.clear();
        m_plain.listsByTitle.clear();
        return QStringLiteral("clearFormats");
    }

    QString addPreset()
    {
        const int list = anyLivingList();
        if (list != PlainCatalogue::noList) {
            const FormatDetailModelData preset = anyPreset();
            if (oneIn(2)) {
                m_lists.at(list)->addModeInfoAtHead(preset);
                m_plain.lists[list].prepend(preset);
            } else {
                m_lists.at(list)->addModeInfo(preset);
                m_plain.lists[list].append(preset);
            }
        }
        return QStringLiteral("addPreset to list %1").arg(list);
    }

    QString deletePreset()
    {
        const int list = anyLivingList();
        if (list != PlainCatalogue::noList) {
            const int row = anyRow(m_plain.lists.at(list).size());
            if (m_lists.at(list)->delModeInfo(row)) {
                m_plain.lists[list].remove(row);
            }
        }
        return QStringLiteral("deletePreset of list %1").arg(list);
    }

    QString deletePresetById()
    {
        const int list = anyLivingList();
        const QString id = anyOf(ids());
        if (list != PlainCatalogue::noList && m_lists.at(list)->delModelInfoByKey(id)) {
            m_plain.lists[list].remove(PlainCatalogue::rowOfId(m_plain.lists.at(list), id));
        }
        return QStringLiteral("deletePresetById %1 of list %2").arg(id).arg(list);
    }

    QString updatePreset()
    {
        const int list = anyLivingList();
        const FormatDetailModelData preset = anyPreset();
        if (list != PlainCatalogue::noList) {
            const int row = anyRow(m_plain.lists.at(list).size());
            if (m_lists.at(list)->updateModeInfo(row, preset)) {
                m_plain.lists[list][row] = preset;
            }
        }
        return QStringLiteral("updatePreset to %1 in list %2").arg(preset.id).arg(list);
    }

    QString writePresetRole()
    {
        const int list = anyLivingList();
        const QString id = anyOf(ids());
        const QString extension = QStringLiteral("extension %1").arg(++m_serial);
        if (list != PlainCatalogue::noList &&
            m_lists.at(list)->setRoleValue(FormatDetailModel::ExtensionRole, id, extension)) {
            PlainCatalogue::Presets &presets = m_plain.lists[list];
            presets[PlainCatalogue::rowOfId(presets, id)].extension = extension;
        }
        return QStringLiteral("writePresetRole %1 of list %2").arg(id).arg(list);
    }

    QString clearPresets()
    {
        const int list = anyLivingList();
        if (list != PlainCatalogue::noList) {
            m_lists.at(list)->clearModeInfo();
            m_plain.lists[list].clear();
        }
        return QStringLiteral("clearPresets of list %1").arg(list);
    }

    QString disagreementIn(int list) const
    {
        const FormatDetailModel *model = m_lists.at(list);
        const PlainCatalogue::Presets &presets = m_plain.lists.at(list);
        if (model->rowCount() != presets.size()) {
            return QStringLiteral("rowCount()");
        }
        for (const QString &id : ids()) {
            const int row = PlainCatalogue::rowOfId(presets, id);
            FormatDetailModelData read;
            if (model->findModelInfoIndex(id) != row) {
                return QStringLiteral("findModelInfoIndex(%1)").arg(id);
            }
            if (model->containId(id) != (row >= 0) || model->isExist(id) != (row >= 0)) {
                return QStringLiteral("containId(%1)").arg(id);
            }
            if (model->getModelInfoById(id, read) != (row >= 0)) {
                return QStringLiteral("getModelInfoById(%1)").arg(id);
            }
            if (row >= 0 && fieldsOf(read) != fieldsOf(presets.at(row))) {
                return QStringLiteral("preset of getModelInfoById(%1)").arg(id);
            }
        }
        return QString();
    }

    std::mt19937 m_random;
    int m_serial = 0;
    FormatListModel m_model;
    PlainCatalogue m_plain;
    QVector<QPointer<FormatDetailModel>> m_lists; // in the order of m_plain.lists
    int m_changedList = PlainCatalogue::noList;   // by the last step
};

#endif
