#include "host/presets/userfile.h"

#include "host/files/atomicwrite.h"
#include "host/files/freename.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <optional>

namespace {

using Content = UserFile::Content;

/*! Some 20,000 presets: more than anyone creates. */
constexpr qint64 largestFile = 64LL * 1024 * 1024;

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

Result<Content> contentOf(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return Content{};
    }
    // Opening a pipe would block until something writes to it.
    if (!info.isFile()) {
        return failed(UserFile::tr("%1 is no file; move it away").arg(shown(path)));
    }
    if (info.size() > largestFile) {
        return failed(
            UserFile::tr("%1 has %2, and no more than %3 are read; move it away to start anew")
                .arg(shown(path), sizeText(info.size()), sizeText(largestFile)));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return failed(UserFile::tr("%1 can't be read (%2); check its permissions")
                          .arg(shown(path), file.errorString()));
    }
    const QByteArray json = file.readAll();
    return Content{QJsonDocument::fromJson(json).isArray() ? Content::Good : Content::Damaged,
                   json};
}

/*! The content of a good file; nullopt for any other. */
std::optional<QByteArray> goodContentOf(const QString &path)
{
    const Result<Content> content = contentOf(path);
    return content && content->state == Content::Good ? std::optional(content->json) : std::nullopt;
}

/*! \a path, or "path-2", "path-3" ... where that is taken. */
QString unusedPath(const QString &path)
{
    QString candidate = path;
    for (int number = 2; isTaken(candidate); ++number) {
        candidate = QStringLiteral("%1-%2").arg(path).arg(number);
    }
    return candidate;
}

bool hasSettings(const QJsonValue &preset)
{
    return !preset.toObject().value(QLatin1String("outPutNode")).toObject().isEmpty();
}

} // namespace

Result<Content> UserFile::content() const
{
    return contentOf(m_path);
}

Result<> UserFile::check() const
{
    const Result<Content> own = content();
    if (!own) {
        return failed(own);
    }
    const Result<Content> copy = contentOf(copyPath());
    const bool hasCopy = copy && copy->state == Content::Good;
    const bool isMissing = own->state == Content::Missing;
    const bool isNew = isMissing && copy && copy->json.isEmpty();
    if (own->state == Content::Good || isNew) {
        return {};
    }
    if (hasCopy) {
        return failed((isMissing ? tr("%1 is missing; put its last good copy, %2, in its place")
                                 : tr("%1 is damaged; put its last good copy, %2, in its place"))
                          .arg(shown(m_path), fileName(copyPath())));
    }
    return failed((own->json.isEmpty() && !isMissing
                       ? tr("%1 is empty and there is no good copy of it; remove it to start anew")
                       : tr("%1 is damaged and there is no good copy of it; fix it, or move it "
                            "away to start anew"))
                      .arg(shown(isMissing ? copyPath() : m_path)));
}

Result<QString> UserFile::recover(Unrecoverable unrecoverable) const
{
    const Result<> checked = check();
    if (checked) {
        keepCopy();
        return QString();
    }
    const Result<Content> own = content();
    const std::optional<QByteArray> copy = goodContentOf(copyPath());
    if (!own || (!copy && unrecoverable == LeaveInPlace)) {
        return failed(checked);
    }

    const QString file = shown(m_path);
    if (!copy && own->state == Content::Missing) {
        return tr("%1 was missing and its copy, %2, is damaged").arg(file, fileName(copyPath()));
    }
    const QString aside =
        own->json.isEmpty() ? QString() : unusedPath(m_path + QStringLiteral(".damaged"));
    const bool isKept = aside.isEmpty() || writeAtomically(aside, own->json, m_path);
    const bool isDone =
        isKept && (copy ? bool(writeAtomically(m_path, *copy, copyPath())) : QFile::remove(m_path));
    if (!isDone) {
        return failed(checked);
    }
    if (!copy) {
        return aside.isEmpty()
                   ? tr("%1 was empty and there is no good copy of it").arg(file)
                   : tr("%1 was damaged and there is no good copy of it; it is kept as %2")
                         .arg(file, fileName(aside));
    }
    const QString back = fileName(copyPath());
    if (!aside.isEmpty()) {
        return tr("%1 was damaged; its last good copy, %2, is in its place, and the damaged file "
                  "is kept as %3")
            .arg(file, back, fileName(aside));
    }
    return (own->state == Content::Missing
                ? tr("%1 was missing; its last good copy, %2, is in its place")
                : tr("%1 was empty; its last good copy, %2, is in its place"))
        .arg(file, back);
}

Result<> UserFile::replace(const QByteArray &json) const
{
    const Result<Content> before = content();
    if (!before) {
        return failed(before);
    }
    QString keptAs;
    if (before->state == Content::Damaged && !before->json.isEmpty()) {
        keptAs = unusedPath(m_path + QStringLiteral(".damaged"));
    } else if (before->state == Content::Good && before->json != goodContentOf(copyPath())) {
        // Another program has changed it since recover().
        keptAs = unusedPath(m_path + QStringLiteral(".changed"));
    }
    Result<> done = keptAs.isEmpty() ? Result<>() : writeAtomically(keptAs, before->json, m_path);
    if (done && before->json != json) {
        done = writeAtomically(m_path, json, m_path);
    }
    if (!done) {
        return failed(
            tr("can't write %1 (%2), which is as before; check its disk and its permissions")
                .arg(shown(m_path), done.error().text));
    }
    keepCopy();
    return {};
}

void UserFile::keepCopy() const
{
    const Result<Content> own = content();
    const Result<Content> copy = contentOf(copyPath());
    if (!own || own->state != Content::Good || !copy || own->json == copy->json) {
        return;
    }
    // A damaged backup may be all that is left of presets lost earlier.
    const bool isToKeep = copy->state == Content::Damaged && !copy->json.isEmpty();
    if (!isToKeep || writeAtomically(unusedPath(copyPath() + QStringLiteral(".damaged")),
                                     copy->json, copyPath())) {
        // If this fails, the older backup remains.
        static_cast<void>(writeAtomically(copyPath(), own->json, m_path));
    }
}

Result<QString> UserFile::keepUnusable(const QJsonArray &records) const
{
    if (records.isEmpty()) {
        return QString();
    }
    const UserFile beside(m_path + QStringLiteral(".unusable"));
    const Result<> checked = beside.check();
    if (!checked) {
        return failed(checked);
    }
    QJsonArray kept = listIn(beside.content()->json);
    const int countBefore = kept.size();
    for (const QJsonValue &record : records) {
        if (!kept.contains(record)) {
            kept.append(record);
        }
    }
    if (kept.size() == countBefore) {
        return QString();
    }
    const Result<> written = writeAtomically(beside.path(), QJsonDocument(kept).toJson(), m_path);
    if (!written) {
        return failed(tr("can't keep the unusable presets of %1 in %2 (%3); check its disk and "
                         "its permissions")
                          .arg(shown(m_path), fileName(beside.path()), written.error().text));
    }
    return tr("%1 holds presets without settings (\"outPutNode\"), which can't be used; they are "
              "kept in %2")
        .arg(shown(m_path), fileName(beside.path()));
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
