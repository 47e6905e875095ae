#include "host/window/addedfiles.h"

#include "host/files/localpath.h"
#include "host/files/visibletext.h"
#include "host/window/toolfun.h"

#include <QFileInfo>

namespace {

bool hasSuffix(const QString &path, const char *suffixes)
{
    static const QLatin1Char separator(' ');
    return QString::fromLatin1(suffixes).split(separator).contains(
        QFileInfo(path).suffix().toLower());
}

/*! Why the file can't be converted, as its name tells; empty if it may be media. */
QString refusalOf(const QString &path)
{
    if (hasSuffix(path, "avif bmp heic heif jpeg jpg png psd svg tif tiff webp")) {
        return ToolFun::text(QStringLiteral("%1 is a picture; add video or audio files"));
    }
    if (hasSuffix(path, "asx cue m3u m3u8 mpd pls wpl xspf")) {
        return ToolFun::text(
            QStringLiteral("%1 is a playlist; add the files that it names instead"));
    }
    return {};
}

} // namespace

AddedFiles AddedFiles::of(const QStringList &paths, const QSet<QString> &present,
                          const QString &results)
{
    AddedFiles added;
    QSet<QString> seen = present;
    for (const QString &path : paths) {
        bool isEmpty = true;
        SourceFiles files({QFileInfo(path).absoluteFilePath()}, true);
        static_cast<void>(results.isEmpty() ? Result<>() : files.leaveOut(results));
        files.each([&](const SourceFile &file) {
            isEmpty = false;
            const QString refusal = refusalOf(file.path);
            if (!refusal.isEmpty()) {
                added.notices << refusal.arg(visibleName(file.path));
            } else if (seen.contains(file.path)) {
                added.known << file;
            } else {
                seen.insert(file.path);
                added.files << file;
            }
        });
        if (isEmpty) {
            added.notices << ToolFun::text(
                                 QStringLiteral("There are no video or audio files in the "
                                                "folder %1; add the files themselves"))
                                 .arg(visiblePath(path));
        }
    }
    return added;
}

QStringList noticesOfRemote(const QList<QUrl> &urls)
{
    QStringList notices;
    for (const QUrl &url : urls) {
        if (localPath(url).isEmpty()) {
            notices << ToolFun::text(QStringLiteral("%1 is not on this computer; download it first "
                                                    "and add the file"))
                           .arg(isolated(visibleText(url.toDisplayString())));
        }
    }
    return notices;
}
