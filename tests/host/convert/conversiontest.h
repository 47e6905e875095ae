#ifndef HOST_CONVERT_CONVERSIONTEST_H
#define HOST_CONVERT_CONVERSIONTEST_H

#include "host/convert/conversion.h"
#include "tests/support/mediaclips.h"
#include "tests/support/messagelog.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <optional>

Q_DECLARE_METATYPE(OutputSettings)

/*! Tests that convert real clips, each in a folder of its own. */
class ConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

protected:
    using Outcome = Result<ConversionOutcome>;

    static Outcome outcomeOf(Conversion &conversion);
    static Outcome convert(const ConversionJob &job);
    /*! Why it failed; empty where it didn't. */
    static QString errorOf(const Outcome &outcome)
    {
        return outcome ? QString() : outcome.error().text;
    }
    static OutputSettings video(const QString &extension);
    static OutputSettings audio(const QString &extension);

    QString path(const QString &name) const { return m_folder->filePath(name); }
    /*! The names of all files in the test's folder, and of what is hidden there. */
    QStringList everything() const
    {
        const QDir folder(m_folder->path());
        return folder.entryList({QStringLiteral(".*")},
                                QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot) +
               folder.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    QString copyOf(const QString &clip, const QString &name) const
    {
        const QString copy = path(name);
        return QFile::copy(m_clips->filePath(clip), copy) ? copy : QString();
    }
    QByteArray contentOf(const QString &file) const
    {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("unreadable");
    }
    ConversionJob job(const QString &source, const OutputSettings &settings) const
    {
        ConversionJob made;
        made.source = source;
        made.settings = settings;
        return made;
    }
    /*! Puts a script in ffmpeg's place, or ffprobe's, until the test ends. */
    void standIn(const QString &script, const QString &tool = QStringLiteral("ffmpeg"))
    {
        QVERIFY(MediaClips::makeStandIn(m_tools->path(), script, QStringLiteral("nothing"), tool));
        qputenv("PATH", MediaClips::pathWith(m_tools->path()));
    }
    /*! The same, which answers no question for the encoders either. */
    void writeTool(const QString &name, const QString &script)
    {
        QFile tool(m_tools->filePath(name));
        QVERIFY(tool.open(QIODevice::WriteOnly));
        QVERIFY(tool.write("#!/bin/sh\n" + script.toUtf8()) > 0);
        QVERIFY(tool.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        qputenv("PATH", MediaClips::pathWith(m_tools->path()));
    }
    /*! Cancels the conversion as soon as the file \a sign is there. */
    void cancelOnce(Conversion &conversion, const QString &sign)
    {
        auto *clock = new QTimer(&conversion);
        connect(clock, &QTimer::timeout, &conversion, [clock, sign, &conversion] {
            if (QFile::exists(sign)) {
                clock->stop();
                conversion.cancel();
            }
        });
        clock->start(10);
    }
    QStringList names(const char *list) const
    {
        return QString::fromLatin1(list).split(QLatin1Char('|'));
    }

    std::unique_ptr<QTemporaryDir> m_clips;
    std::optional<QTemporaryDir> m_folder;
    std::optional<QTemporaryDir> m_tools;

private:
    QByteArray m_path;
    std::optional<MessageLog> m_log;
};

#endif
