#include "host/presets/userfile.h"

#include "host/files/atomicwrite.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

namespace {

using Content = UserFile::Content;

/*! Some 20,000 presets; what is larger isn't a list that a person made. */
constexpr qint64 largestFile = 64 * 1024 * 1024;

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

QString fileName(const QString &path)
{
    return QFileInfo(path).fileName();
}

QString sizeText(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, 0, QLocale::DataSizeTraditionalFormat);
}

QJsonArray listIn(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).array();
}

Content contentOf(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return {Content::Missing};
    }
    // Opening a pipe would wait for whoever writes into it.
    if (!info.isFile()) {
        return {Content::Refused, {}, UserFile::tr("%1 is no file; move it away").arg(shown(path))};
    }
    if (info.size() > largestFile) {
        return {Content::Refused,
                {},
                UserFile::tr("%1 has %2, and no more than %3 are read; move it away to start anew")
                    .arg(shown(path), sizeText(info.size()), sizeText(largestFile))};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {Content::Refused,
                {},
                UserFile::tr("%1 can't be read (%2); check its permissions")
                    .arg(shown(path), file.errorString())};
    }
    const QByteArray json = file.readAll();
    return {QJsonDocument::fromJson(json).isArray() ? Content::Good : Content::Damaged, json};
}

/*! \a path, or "path-2", "path-3" ...: what was kept before stays. */
QString freeName(const QString &path)
{
    QString candidate = path;
    for (int number = 2; QFileInfo::exists(candidate) || QFileInfo(candidate).isSymLink();
         ++number) {
        candidate = QStringLiteral("%1-%2").arg(path).arg(number);
    }
    return candidate;
}

bool hasSettings(const QJsonValue &preset)
{
    return !preset.toObject().value(QLatin1String("outPutNode")).toObject().isEmpty();
}

} // namespace

UserFile::Content UserFile::content() const
{
    return contentOf(m_path);
}

QString UserFile::complaint() const
{
    const Content own = content();
    const bool hasCopy = contentOf(copyPath()).state == Content::Good;
    if (own.state == Content::Good || (own.state == Content::Missing && !hasCopy)) {
        return {};
    }
    if (own.state == Content::Refused) {
        return own.reason;
    }
    const QString file = shown(m_path);
    if (hasCopy) {
        return (own.state == Content::Missing ? tr("%1 is missing; put its last good copy, %2, in "
                                                   "its place")
                                              : tr("%1 is damaged; put its last good copy, %2, in "
                                                   "its place"))
            .arg(file, fileName(copyPath()));
    }
    return (own.json.isEmpty() ? tr("%1 is empty and there is no good copy of it; remove it to "
                                    "start anew")
                               : tr("%1 is damaged and there is no good copy of it; fix it, or "
                                    "move it away to start anew"))
        .arg(file);
}

UserFile::Recovery UserFile::recover(Hopeless hopeless) const
{
    removeUnfinishedWrites(m_path);
    const QString problem = complaint();
    if (problem.isEmpty()) {
        keepCopy();
        return {};
    }
    const Content own = content();
    const Content copy = contentOf(copyPath());
    const bool hasCopy = copy.state == Content::Good;
    if (own.state == Content::Refused || (!hasCopy && hopeless == StaysInPlace)) {
        return {{}, problem};
    }

    const QString file = shown(m_path);
    const QString aside =
        own.json.isEmpty() ? QString() : freeName(m_path + QStringLiteral(".damaged"));
    if (!aside.isEmpty() && !writeAtomically(aside, own.json, m_path).isEmpty()) {
        return {{}, problem};
    }
    if (!hasCopy) {
        if (!QFile::remove(m_path)) {
            return {{}, problem};
        }
        return {aside.isEmpty()
                    ? tr("%1 was empty and there is no good copy of it").arg(file)
                    : tr("%1 was damaged and there is no good copy of it; it is kept as %2")
                          .arg(file, fileName(aside)),
                {}};
    }
    if (!writeAtomically(m_path, copy.json, copyPath()).isEmpty()) {
        return {{}, problem};
    }
    const QString back = fileName(copyPath());
    if (!aside.isEmpty()) {
        return {tr("%1 was damaged; its last good copy, %2, is in its place, and the damaged file "
                   "is kept as %3")
                    .arg(file, back, fileName(aside)),
                {}};
    }
    return {(own.state == Content::Missing
                 ? tr("%1 was missing; its last good copy, %2, is in its place")
                 : tr("%1 was empty; its last good copy, %2, is in its place"))
                .arg(file, back),
            {}};
}

QString UserFile::replace(const QByteArray &json) const
{
    const Content before = content();
    if (before.state == Content::Refused) {
        return before.reason;
    }
    QString keptAs;
    if (before.state == Content::Damaged && !before.json.isEmpty()) {
        keptAs = freeName(m_path + QStringLiteral(".damaged"));
    } else if (before.state == Content::Good && before.json != contentOf(copyPath()).json) {
        // Somebody else has written it since it was opened.
        keptAs = freeName(m_path + QStringLiteral(".changed"));
    }
    QString failure = keptAs.isEmpty() ? QString() : writeAtomically(keptAs, before.json, m_path);
    if (failure.isEmpty() && before.json != json) {
        failure = writeAtomically(m_path, json, m_path);
    }
    if (!failure.isEmpty()) {
        return tr("can't write %1 (%2), which is as before; check its disk and its permissions")
            .arg(shown(m_path), failure);
    }
    keepCopy();
    return {};
}

void UserFile::keepCopy() const
{
    const Content own = content();
    if (own.state == Content::Good && own.json != contentOf(copyPath()).json) {
        // Where this fails the copy stays what it was: older, but good.
        writeAtomically(copyPath(), own.json, m_path);
    }
}

UserFile::Recovery UserFile::keepUnusable(const QJsonArray &records) const
{
    const UserFile beside(m_path + QStringLiteral(".unusable"));
    const QString problem = beside.complaint();
    if (records.isEmpty() || !problem.isEmpty()) {
        return {{}, records.isEmpty() ? QString() : problem};
    }
    QJsonArray kept = listIn(beside.content().json);
    const int countBefore = kept.size();
    for (const QJsonValue &record : records) {
        if (!kept.contains(record)) {
            kept.append(record);
        }
    }
    if (kept.size() == countBefore) {
        return {};
    }
    const QString unwritten = writeAtomically(beside.path(), QJsonDocument(kept).toJson(), m_path);
    if (!unwritten.isEmpty()) {
        return {{},
                tr("can't keep the unusable presets of %1 in %2 (%3); check its disk and its "
                   "permissions")
                    .arg(shown(m_path), fileName(beside.path()), unwritten)};
    }
    return {tr("%1 holds presets without settings (\"outPutNode\"), which can't be used; they are "
               "kept in %2")
                .arg(shown(m_path), fileName(beside.path())),
            {}};
}

QJsonArray unusablePresets(const QJsonArray &presets)
{
    QJsonArray unusable;
    for (const QJsonValue &preset : presets) {
        if (!hasSettings(preset)) {
            unusable.append(preset);
        }
    }
    return unusable;
}

QJsonArray unusableFormats(const QJsonArray &formats)
{
    const QLatin1String groupKey("group");
    QJsonArray unusable;
    for (const QJsonValue &format : formats) {
        QJsonObject reduced = format.toObject();
        const QJsonValue group = reduced.value(groupKey);
        if (!format.isObject() || (!group.isArray() && !group.isUndefined())) {
            unusable.append(format);
            continue;
        }
        const QJsonArray presets = unusablePresets(group.toArray());
        if (!presets.isEmpty()) {
            reduced.insert(groupKey, presets);
            unusable.append(reduced);
        }
    }
    return unusable;
}
