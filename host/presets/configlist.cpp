#include "host/presets/configlist.h"

#include "host/files/atomicwrite.h"
#include "host/files/freename.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <limits>

namespace {

constexpr qint64 largestFile = 64LL * 1024 * 1024;
constexpr int version = 1;
const QLatin1String versionKey("version");
const QLatin1String entriesKey("entries");

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace

Result<QByteArray> readSmallFile(const QString &path, qint64 largest)
{
    const QFileInfo info(path);
    // Opening a pipe would block until something writes to it.
    if (!info.isFile()) {
        return failed((info.exists() ? ConfigList::tr("%1 is no file; name another one")
                                     : ConfigList::tr("there is no file %1; check its name"))
                          .arg(shown(path)));
    }
    if (info.size() > largest) {
        return failed(ConfigList::tr("%1 has %2, and no more than %3 are read")
                          .arg(shown(path), QLocale::c().formattedDataSize(info.size()),
                               QLocale::c().formattedDataSize(largest)));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return failed(ConfigList::tr("%1 can't be read (%2); check its permissions")
                          .arg(shown(path), file.errorString()));
    }
    return file.read(largest);
}

Result<QJsonArray> ConfigList::read() const
{
    if (!isTaken(m_path)) {
        return QJsonArray();
    }
    const Result<QByteArray> content = readSmallFile(m_path, largestFile);
    if (!content) {
        return failed(content);
    }
    QJsonParseError error;
    const QJsonObject root = QJsonDocument::fromJson(*content, &error).object();
    if (error.error != QJsonParseError::NoError) {
        return failed(tr("%1 isn't used: %2 at byte %3")
                          .arg(shown(m_path), error.errorString())
                          .arg(error.offset));
    }
    if (root.value(versionKey).toInt() != version || !root.value(entriesKey).isArray()) {
        return failed(tr("%1 isn't used: it must have \"version\": %2 and a list \"entries\"")
                          .arg(shown(m_path))
                          .arg(version));
    }
    return root.value(entriesKey).toArray();
}

Result<> ConfigList::write(const QJsonArray &entries) const
{
    const Result<QJsonArray> before = read();
    if (before && *before == entries) {
        return {};
    }
    Result<> done;
    if (!before && QFileInfo(m_path).isFile()) {
        QString aside = m_path + QStringLiteral(".damaged");
        for (int number = 2; isTaken(aside); ++number) {
            aside = QStringLiteral("%1.damaged-%2").arg(m_path).arg(number);
        }
        done = readSmallFile(m_path, std::numeric_limits<int>::max())
                   .and_then([this, &aside](const QByteArray &damaged) {
                       return writeAtomically(aside, damaged, m_path);
                   });
    }
    if (done) {
        const QJsonObject root{{versionKey, version}, {entriesKey, entries}};
        done = writeAtomically(m_path, QJsonDocument(root).toJson(QJsonDocument::Compact), m_path);
    }
    if (!done) {
        return failed(
            tr("can't write %1 (%2), which is as before; check its disk and its permissions")
                .arg(shown(m_path), done.error().text));
    }
    return {};
}
