#include "host/window/presets.h"

#include "host/window/windowsettings.h"

#include "formats/proxy/formatsproxy.h"
#include "tests/support/patience.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QString firstIdIn(const QString &path)
{
    const QJsonArray list = QJsonDocument::fromJson(contentOf(path)).array();
    return list.at(0).toObject().value(QStringLiteral("id")).toString();
}

} // namespace

class TestPresets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void everyChangeIsSavedAsItHappens();
    void aFailedSaveIsReported();
    void unsavedChangesAreSavedAtTheEnd();
    void aRemovedFolderIsRestoredWithAllPresets();
    void aDeletedPresetHasAStandIn();
    void captionsNameTheFormatAndTheTitle();

    void settingsSurviveARestart();
    void withoutTheDefaultPresetTheFirstOneStandsIn();

private:
    QString recently() const { return m_folder.filePath(QStringLiteral("recently.json")); }
    QString userPresets() const { return m_folder.filePath(QStringLiteral("formatCache.json")); }

    QTemporaryDir m_folder;
    std::unique_ptr<PresetStore> m_store;
    std::unique_ptr<Presets> m_presets;
};

void TestPresets::initTestCase()
{
    m_store = std::make_unique<PresetStore>(*FormatsProxy::getInstance(), m_folder.path());
    QVERIFY(m_store->open(PresetStore::ReadWrite));
    m_presets = std::make_unique<Presets>(*m_store);
}

void TestPresets::everyChangeIsSavedAsItHappens()
{
    QSignalSpy changes(m_presets.get(), &Presets::changed);
    m_presets->noteUse(QStringLiteral("Audio_MP3_002"));
    QTRY_COMPARE_WITH_TIMEOUT(changes.count(), 1, patience);
    QCOMPARE(firstIdIn(recently()), QStringLiteral("Audio_MP3_002"));

    FormatsProxy &formats = m_store->formats();
    const QString id = formats.addUserDefineFormat(
        QStringLiteral("audio"), QStringLiteral("MP3"), QStringLiteral("Audio_MP3_002"),
        {{QStringLiteral("title"), QStringLiteral("Mine")}});
    QTRY_COMPARE_WITH_TIMEOUT(changes.count(), 2, patience);
    QVERIFY(contentOf(userPresets()).contains("\"Mine\""));

    formats.changeUserDefineFormat(QStringLiteral("MP3"), id,
                                   {{QStringLiteral("title"), QStringLiteral("Yours")}});
    QTRY_COMPARE_WITH_TIMEOUT(changes.count(), 3, patience);
    QVERIFY(contentOf(userPresets()).contains("\"Yours\""));

    formats.delUserDefineFormat(QStringLiteral("audio"), QStringLiteral("MP3"), id);
    formats.delFromRecently(QStringLiteral("Audio_MP3_002"));
    m_presets->flush();
    QCOMPARE(changes.count(), 4);
    QVERIFY(!contentOf(userPresets()).contains("\"Yours\""));
    QCOMPARE(contentOf(recently()).simplified(), QByteArray("[ ]"));
    m_presets->flush();
    QCOMPARE(changes.count(), 4);
}

void TestPresets::aFailedSaveIsReported()
{
    const QByteArray before = contentOf(recently());
    QVERIFY(QFile::remove(recently()));
    QVERIFY(QDir().mkdir(recently()));
    QSignalSpy failures(m_presets.get(), &Presets::saveFailed);
    m_presets->noteUse(QStringLiteral("Audio_MP3_002"));
    QTRY_COMPARE_WITH_TIMEOUT(failures.count(), 1, patience);
    QVERIFY(failures.at(0).at(0).toString().contains(recently()));
    QVERIFY(QDir().rmdir(recently()));
    write(recently(), before);
    m_store->formats().delFromRecently(QStringLiteral("Audio_MP3_002"));
    m_presets->flush();
    QCOMPARE(failures.count(), 1);
}

void TestPresets::unsavedChangesAreSavedAtTheEnd()
{
    const QByteArray before = contentOf(recently());
    QVERIFY(QFile::remove(recently()));
    QVERIFY(QDir().mkdir(recently()));
    QSignalSpy failures(m_presets.get(), &Presets::saveFailed);
    m_presets->noteUse(QStringLiteral("Audio_MP3_002"));
    QTRY_COMPARE_WITH_TIMEOUT(failures.count(), 1, patience);
    QVERIFY(QDir().rmdir(recently()));
    write(recently(), before);
    m_presets->flush();
    QCOMPARE(failures.count(), 1);
    QCOMPARE(firstIdIn(recently()), QStringLiteral("Audio_MP3_002"));
    m_store->formats().delFromRecently(QStringLiteral("Audio_MP3_002"));
    m_presets->flush();
}

void TestPresets::aRemovedFolderIsRestoredWithAllPresets()
{
    QSignalSpy failures(m_presets.get(), &Presets::saveFailed);
    FormatsProxy &formats = m_store->formats();
    const QString tag = QStringLiteral("audio");
    const QString title = QStringLiteral("MP3");
    const QString base = QStringLiteral("Audio_MP3_002");
    const QString first = formats.addUserDefineFormat(
        tag, title, base, {{QStringLiteral("title"), QStringLiteral("First")}});
    m_presets->flush();
    QVERIFY(QDir(m_folder.path()).removeRecursively());
    const QString second = formats.addUserDefineFormat(
        tag, title, base, {{QStringLiteral("title"), QStringLiteral("Second")}});
    m_presets->flush();
    QCOMPARE(failures.count(), 0);
    QVERIFY(contentOf(userPresets()).contains("\"First\""));
    QVERIFY(contentOf(userPresets()).contains("\"Second\""));
    formats.delUserDefineFormat(tag, title, first);
    formats.delUserDefineFormat(tag, title, second);
    m_presets->flush();
}

void TestPresets::aDeletedPresetHasAStandIn()
{
    const QString known = QStringLiteral("Audio_MP3_002");
    const QString other = QStringLiteral("Video_MKV_001");
    const QString gone = QStringLiteral("4711");
    QCOMPARE(m_presets->usable(known, other), known);
    QCOMPARE(m_presets->usable(gone, other), other);
    QCOMPARE(m_presets->usable(gone, gone), QStringLiteral("Video_MP4_001"));
}

void TestPresets::captionsNameTheFormatAndTheTitle()
{
    QCOMPARE(m_presets->caption(QStringLiteral("Audio_MP3_002")),
             QStringLiteral("MP3 - High Quality"));
    QCOMPARE(m_presets->caption(QStringLiteral("Video_MP4_001")),
             QStringLiteral("MP4 - Keep Orignal"));
    QCOMPARE(m_presets->caption(QStringLiteral("4711")), QString());
    QCOMPARE(m_presets->icon(QStringLiteral("Audio_MP3_002")),
             QStringLiteral("qrc:/formats/image/fmt_mp3.svg"));
    QCOMPARE(m_presets->icon(QStringLiteral("4711")), QString());
}

void TestPresets::settingsSurviveARestart()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("vexconvert.ini"));
    {
        WindowSettings settings(path);
        QCOMPARE(settings.converterGlobalId(), QStringLiteral("Video_MP4_001"));
        QCOMPARE(settings.editorGlobalId(), QStringLiteral("Video_MP4_001"));
        QSignalSpy converter(&settings, &WindowSettings::converterGlobalIdChanged);
        QSignalSpy editor(&settings, &WindowSettings::editorGlobalIdChanged);
        settings.setConverterGlobalId(QStringLiteral("1001"));
        settings.setConverterGlobalId(QStringLiteral("1001"));
        settings.setFolder(PageKind::Editor, QStringLiteral("/films"));
        QCOMPARE(converter.count(), 1);
        QCOMPARE(editor.count(), 0);
    }
    WindowSettings settings(path);
    QCOMPARE(settings.converterGlobalId(), QStringLiteral("1001"));
    QCOMPARE(settings.editorGlobalId(), QStringLiteral("Video_MP4_001"));
    QCOMPARE(settings.folder(PageKind::Converter), QString());
    QCOMPARE(settings.folder(PageKind::Editor), QStringLiteral("/films"));
}

// Must run last: it removes a format.
void TestPresets::withoutTheDefaultPresetTheFirstOneStandsIn()
{
    const QString gone = QStringLiteral("4711");
    FormatListModel &formats = *m_store->formats().formatListModel();
    QCOMPARE(formats.getTitle(0), QStringLiteral("MP4"));
    QVERIFY(formats.delModeInfo(0));
    QCOMPARE(m_presets->usable(gone, gone), QStringLiteral("Video_HEVCMP4_001"));
    formats.clearModeInfo();
    QCOMPARE(m_presets->usable(gone, gone), QString());
}

QTEST_GUILESS_MAIN(TestPresets)
#include "tst_presets.moc"
