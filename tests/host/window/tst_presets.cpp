#include "host/window/presets.h"

#include "host/window/settings.h"

#include "formats/proxy/formatsproxy.h"

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
    void aSaveThatFailsIsTold();
    void aPresetThatIsGoneHasAStandIn();
    void captionsNameTheFormatAndTheTitle();

    void aDamagedFileGivesWayToItsGoodCopy_data();
    void aDamagedFileGivesWayToItsGoodCopy();
    void aDamagedFileWithoutAGoodCopyIsPutAside();
    void goodAndMissingFilesAreLeftAlone();
    void aFolderHasOneUserAtATime();
    void theLockOfAProgramThatDiedIsNoLock();
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
    m_store = std::make_unique<PresetStore>(m_folder.path());
    QCOMPARE(m_store->open(PresetStore::ReadWrite), QString());
    m_presets = std::make_unique<Presets>(*m_store);
}

void TestPresets::everyChangeIsSavedAsItHappens()
{
    QSignalSpy changes(m_presets.get(), &Presets::changed);
    m_presets->noteUse(QStringLiteral("Audio_MP3_002"));
    QTRY_COMPARE(changes.count(), 1);
    QCOMPARE(firstIdIn(recently()), QStringLiteral("Audio_MP3_002"));

    FormatsProxy &formats = m_store->formats();
    const QString id = formats.addUserDefineFormat(
        QStringLiteral("audio"), QStringLiteral("MP3"), QStringLiteral("Audio_MP3_002"),
        {{QStringLiteral("title"), QStringLiteral("Mine")}});
    QTRY_COMPARE(changes.count(), 2);
    QVERIFY(contentOf(userPresets()).contains("\"Mine\""));

    formats.changeUserDefineFormat(QStringLiteral("MP3"), id,
                                   {{QStringLiteral("title"), QStringLiteral("Yours")}});
    QTRY_COMPARE(changes.count(), 3);
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

void TestPresets::aSaveThatFailsIsTold()
{
    const QByteArray before = contentOf(recently());
    write(recently(), "[ \"torn");
    QSignalSpy failures(m_presets.get(), &Presets::saveFailed);
    m_presets->noteUse(QStringLiteral("Audio_MP3_002"));
    QTRY_COMPARE(failures.count(), 1);
    QVERIFY(failures.at(0).at(0).toString().contains(recently()));
    write(recently(), before);
    m_store->formats().delFromRecently(QStringLiteral("Audio_MP3_002"));
    m_presets->flush();
    QCOMPARE(failures.count(), 1);
}

void TestPresets::aPresetThatIsGoneHasAStandIn()
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

void TestPresets::aDamagedFileGivesWayToItsGoodCopy_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("damage");
    for (const char *name : {"recently.json", "formatCache.json"}) {
        const QString file = QString::fromLatin1(name);
        QTest::addRow("%s, truncated", name) << file << QByteArray("[ { \"id\": \"10");
        QTest::addRow("%s, emptied", name) << file << QByteArray();
        QTest::addRow("%s, no JSON", name) << file << QByteArray("\0\0\0\0", 4);
        QTest::addRow("%s, no list", name) << file << QByteArray("{}");
    }
}

void TestPresets::aDamagedFileGivesWayToItsGoodCopy()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, damage);
    QTemporaryDir folder;
    const QString path = folder.filePath(name);
    const QByteArray good = "[ { \"id\": \"1001\" } ]";
    write(path, damage);
    write(path + QStringLiteral(".bak"), good);

    PresetStore store(folder.path());
    const QStringList lines = store.repair();
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.constFirst().startsWith(path + QStringLiteral(" was damaged; its last good")));
    QCOMPARE(contentOf(path), good);
    QCOMPARE(contentOf(path + QStringLiteral(".bak")), good);
    QCOMPARE(contentOf(path + QStringLiteral(".damaged")), damage);
    QCOMPARE(store.repair(), QStringList());
}

void TestPresets::aDamagedFileWithoutAGoodCopyIsPutAside()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("recently.json"));
    write(path, "[");
    write(path + QStringLiteral(".bak"), "[");
    PresetStore store(folder.path());
    const QStringList lines = store.repair();
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.constFirst().contains(QStringLiteral("there is no good copy")));
    QVERIFY(!QFile::exists(path));
    QCOMPARE(contentOf(path + QStringLiteral(".damaged")), QByteArray("["));
}

void TestPresets::goodAndMissingFilesAreLeftAlone()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("recently.json"));
    write(path, "[]");
    write(path + QStringLiteral(".bak"), "[ 1 ]");
    PresetStore store(folder.path());
    QCOMPARE(store.repair(), QStringList());
    QCOMPARE(contentOf(path), QByteArray("[]"));
    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("formatCache.json"))));
}

void TestPresets::aFolderHasOneUserAtATime()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("made"));
    PresetStore second(path);
    {
        PresetStore first(path);
        QCOMPARE(first.lock(0), QString());
        QVERIFY(second.lock(0).startsWith(QStringLiteral("another program is writing")));

        // However long it has been there.
        QFile lock(QDir(path).filePath(QStringLiteral("vexconvert.lock")));
        QVERIFY(lock.open(QIODevice::ReadWrite));
        QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addDays(-1),
                                 QFileDevice::FileModificationTime));
        QVERIFY(second.lock(0).startsWith(QStringLiteral("another program is writing")));
    }
    QCOMPARE(second.lock(0), QString());
}

void TestPresets::theLockOfAProgramThatDiedIsNoLock()
{
    QTemporaryDir folder;
    // A process number that can't be.
    write(folder.filePath(QStringLiteral("vexconvert.lock")),
          "99999999\nvexconvert\n" + QSysInfo::machineHostName().toLocal8Bit() + "\n");
    PresetStore store(folder.path());
    QCOMPARE(store.lock(0), QString());
}

void TestPresets::settingsSurviveARestart()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("vexconvert.ini"));
    {
        Settings settings(path);
        QCOMPARE(settings.converterGlobalId(), QStringLiteral("Video_MP4_001"));
        QCOMPARE(settings.editorGlobalId(), QStringLiteral("Video_MP4_001"));
        QSignalSpy converter(&settings, &Settings::converterGlobalIdChanged);
        QSignalSpy editor(&settings, &Settings::editorGlobalIdChanged);
        settings.setConverterGlobalId(QStringLiteral("1001"));
        settings.setConverterGlobalId(QStringLiteral("1001"));
        settings.setFolder(PageKind::Editor, QStringLiteral("/films"));
        QCOMPARE(converter.count(), 1);
        QCOMPARE(editor.count(), 0);
    }
    Settings settings(path);
    QCOMPARE(settings.converterGlobalId(), QStringLiteral("1001"));
    QCOMPARE(settings.editorGlobalId(), QStringLiteral("Video_MP4_001"));
    QCOMPARE(settings.folder(PageKind::Converter), QString());
    QCOMPARE(settings.folder(PageKind::Editor), QStringLiteral("/films"));
}

// The last one: it takes a format away.
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
