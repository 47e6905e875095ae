#include "host/presets/userfile.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

namespace {

const QByteArray good = "[ { \"id\": \"1001\" } ]";
const QByteArray other = "[ { \"id\": \"1002\" } ]";

QJsonArray list(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).array();
}

} // namespace

class TestUserFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aDamagedFileIsReplacedByItsGoodCopy_data();
    void aDamagedFileIsReplacedByItsGoodCopy();
    void withoutAGoodCopyItStaysAndIsReported_data();
    void withoutAGoodCopyItStaysAndIsReported();
    void withoutAGoodCopyItIsMovedAsideOnDemand();
    void filesMovedAsideEarlierStay();
    void aDamagedCopyOfAMissingFileIsReportedAndKept();
    void goodAndMissingFilesNeedNoRecovery();
    void aFolderInItsPlaceIsRefused();

    void replacingAFileUpdatesItsCopy();
    void changesOfAnotherProgramAreKept_data();
    void changesOfAnotherProgramAreKept();
    void permissionsAreKept();

    void unusablePresetsAreKeptOnce();
    void recordsThatTheLibraryDropsAreUnusable_data();
    void recordsThatTheLibraryDropsAreUnusable();

private:
    QString aside(const QString &ending) const { return m_path + ending; }
    QStringList names() const { return QDir(m_folder->path()).entryList(QDir::Files); }

    std::optional<QTemporaryDir> m_folder;
    QString m_path;
};

void TestUserFile::init()
{
    m_folder.emplace();
    m_path = m_folder->filePath(QStringLiteral("formatCache.json"));
}

void TestUserFile::aDamagedFileIsReplacedByItsGoodCopy_data()
{
    QTest::addColumn<QByteArray>("damage");
    QTest::addColumn<QString>("note");
    const QString kept =
        QStringLiteral(" was damaged; its last good copy, formatCache.json.bak, is "
                       "in its place, and the damaged file is kept as "
                       "formatCache.json.damaged");
    QTest::newRow("cut") << QByteArray("[ { \"id\": \"10") << kept;
    QTest::newRow("not JSON") << QByteArray("\0\0\0\0", 4) << kept;
    QTest::newRow("not an array") << QByteArray("{}") << kept;
    QTest::newRow("empty")
        << QByteArray()
        << QStringLiteral(" was empty; its last good copy, formatCache.json.bak, is in its place");
    QTest::newRow("missing") << QByteArray("missing")
                             << QStringLiteral(" was missing; its last good copy, "
                                               "formatCache.json.bak, is in its place");
}

void TestUserFile::aDamagedFileIsReplacedByItsGoodCopy()
{
    QFETCH(QByteArray, damage);
    QFETCH(QString, note);
    const UserFile file(m_path);
    QVERIFY(writeFile(file.copyPath(), good));
    if (damage != "missing") {
        QVERIFY(writeFile(m_path, damage));
    }
    const QString complaint = file.check().error().text;
    QVERIFY(complaint.startsWith(m_path + QStringLiteral(" is ")));
    QVERIFY(complaint.contains(QStringLiteral("its last good copy, formatCache.json.bak")));

    QCOMPARE(file.recover(UserFile::LeaveInPlace).value(), m_path + note);
    QCOMPARE(contentOf(m_path), good);
    QCOMPARE(contentOf(file.copyPath()), good);
    const bool isKept = note.contains(QStringLiteral("is kept as"));
    QCOMPARE(contentOf(aside(QStringLiteral(".damaged"))), isKept ? damage : "missing");
    QVERIFY(file.check());
    QCOMPARE(file.recover(UserFile::LeaveInPlace).value(), QString());
}

void TestUserFile::withoutAGoodCopyItStaysAndIsReported_data()
{
    QTest::addColumn<QByteArray>("damage");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("cut") << QByteArray("[")
                         << QStringLiteral(" is damaged and there is no good copy of it; fix it, "
                                           "or move it away to start anew");
    QTest::newRow("empty") << QByteArray()
                           << QStringLiteral(" is empty and there is no good copy of it; remove "
                                             "it to start anew");
}

void TestUserFile::withoutAGoodCopyItStaysAndIsReported()
{
    QFETCH(QByteArray, damage);
    QFETCH(QString, complaint);
    const UserFile file(m_path);
    QVERIFY(writeFile(m_path, damage));
    QVERIFY(writeFile(file.copyPath(), "["));
    QCOMPARE(file.check().error().text, m_path + complaint);
    QCOMPARE(file.recover(UserFile::LeaveInPlace).error().text, m_path + complaint);
    QCOMPARE(contentOf(m_path), damage);
    QCOMPARE(names().size(), 2);
}

void TestUserFile::withoutAGoodCopyItIsMovedAsideOnDemand()
{
    const UserFile file(m_path);
    QVERIFY(writeFile(m_path, "["));
    QCOMPARE(file.recover(UserFile::MoveAside).value(),
             m_path + QStringLiteral(" was damaged and there is no good copy of "
                                     "it; it is kept as formatCache.json.damaged"));
    QCOMPARE(names(), QStringList{QStringLiteral("formatCache.json.damaged")});
    QCOMPARE(contentOf(aside(QStringLiteral(".damaged"))), QByteArray("["));
}

void TestUserFile::filesMovedAsideEarlierStay()
{
    const UserFile file(m_path);
    for (const QByteArray &damage : {QByteArray("[1"), QByteArray("[2"), QByteArray("[3")}) {
        QVERIFY(writeFile(m_path, damage));
        QVERIFY(file.recover(UserFile::MoveAside));
    }
    QCOMPARE(contentOf(aside(QStringLiteral(".damaged"))), QByteArray("[1"));
    QCOMPARE(contentOf(aside(QStringLiteral(".damaged-2"))), QByteArray("[2"));
    QCOMPARE(contentOf(aside(QStringLiteral(".damaged-3"))), QByteArray("[3"));
}

void TestUserFile::aDamagedCopyOfAMissingFileIsReportedAndKept()
{
    const UserFile file(m_path);
    QVERIFY(writeFile(file.copyPath(), "["));
    QCOMPARE(file.recover(UserFile::LeaveInPlace).error().text,
             file.copyPath() + QStringLiteral(" is damaged and there is no good copy of it; fix "
                                              "it, or move it away to start anew"));
    QCOMPARE(file.recover(UserFile::MoveAside).value(),
             m_path + QStringLiteral(" was missing and its copy, "
                                     "formatCache.json.bak, is damaged"));
    QVERIFY(file.replace(good));
    QCOMPARE(contentOf(file.copyPath()), good);
    QCOMPARE(contentOf(aside(QStringLiteral(".bak.damaged"))), QByteArray("["));
}

void TestUserFile::goodAndMissingFilesNeedNoRecovery()
{
    const UserFile file(m_path);
    QVERIFY(file.check());
    QCOMPARE(file.recover(UserFile::LeaveInPlace).value(), QString());
    QCOMPARE(names(), QStringList());

    QVERIFY(writeFile(m_path, "[]"));
    QVERIFY(writeFile(file.copyPath(), good));
    QVERIFY(file.check());
    QCOMPARE(file.recover(UserFile::LeaveInPlace).value(), QString());
    QCOMPARE(contentOf(m_path), QByteArray("[]"));
}

void TestUserFile::aFolderInItsPlaceIsRefused()
{
    const UserFile file(m_path);
    QVERIFY(writeFile(file.copyPath(), good));
    QVERIFY(QDir().mkdir(m_path));
    const QString refusal = m_path + QStringLiteral(" is no file; move it away");
    QCOMPARE(file.check().error().text, refusal);
    QCOMPARE(file.recover(UserFile::MoveAside).error().text, refusal);
    QCOMPARE(file.replace(other).error().text, refusal);
    QVERIFY(QFileInfo(m_path).isDir());
}

void TestUserFile::replacingAFileUpdatesItsCopy()
{
    const UserFile file(m_path);
    QVERIFY(file.replace(good));
    QCOMPARE(contentOf(m_path), good);
    QCOMPARE(contentOf(file.copyPath()), good);
    QVERIFY(file.replace(other));
    QCOMPARE(contentOf(m_path), other);
    QCOMPARE(contentOf(file.copyPath()), other);
    QCOMPARE(names().size(), 2);
}

void TestUserFile::changesOfAnotherProgramAreKept_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QString>("keptAs");
    QTest::newRow("a list") << QByteArray("[ 4711 ]") << QStringLiteral(".changed");
    QTest::newRow("not an array") << QByteArray("[ 47") << QStringLiteral(".damaged");
}

void TestUserFile::changesOfAnotherProgramAreKept()
{
    QFETCH(QByteArray, written);
    QFETCH(QString, keptAs);
    const UserFile file(m_path);
    QVERIFY(file.replace(good));
    QVERIFY(writeFile(m_path, written));
    QVERIFY(file.replace(other));
    QCOMPARE(contentOf(m_path), other);
    QCOMPARE(contentOf(aside(keptAs)), written);
}

void TestUserFile::permissionsAreKept()
{
    const UserFile file(m_path);
    QVERIFY(writeFile(m_path, good));
    const auto userOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QVERIFY(QFile::setPermissions(m_path, userOnly));
    QVERIFY(file.recover(UserFile::LeaveInPlace));
    QVERIFY(file.replace(other));
    QCOMPARE(QFile::permissions(m_path), userOnly);
    QCOMPARE(QFile::permissions(file.copyPath()), userOnly);
}

void TestUserFile::unusablePresetsAreKeptOnce()
{
    const UserFile file(m_path);
    QVERIFY(writeFile(m_path, good));
    QCOMPARE(file.keepUnusable({}).value(), QString());
    QCOMPARE(names().size(), 1);

    const QString note = m_path + QStringLiteral(" holds presets without settings "
                                                 "(\"outPutNode\"), which can't be used; they are "
                                                 "kept in formatCache.json.unusable");
    const QString beside = aside(QStringLiteral(".unusable"));
    QCOMPARE(file.keepUnusable(list("[1, 2]")).value(), note);
    QCOMPARE(file.keepUnusable(list("[2]")).value(), QString());
    QCOMPARE(file.keepUnusable(list("[2, 3]")).value(), note);
    QCOMPARE(list(contentOf(beside)), list("[1, 2, 3]"));

    QVERIFY(writeFile(beside, "damaged"));
    QVERIFY(file.keepUnusable(list("[4]")).error().text.startsWith(beside));
    QCOMPARE(contentOf(beside), QByteArray("damaged"));
}

void TestUserFile::recordsThatTheLibraryDropsAreUnusable_data()
{
    QTest::addColumn<QByteArray>("formats");
    QTest::addColumn<QByteArray>("unusable");
    const auto row = [](const char *name, const char *formats, const char *unusable) {
        QTest::newRow(name) << QByteArray(formats) << QByteArray(unusable);
    };
    row("a preset with settings", R"([{"title": "MP4", "group": [{"outPutNode": {"a": 1}}]}])",
        "[]");
    row("no settings", R"([{"title": "MP4", "group": [{"id": "1"}, {"outPutNode": {"a": 1}}]}])",
        R"([{"title": "MP4", "group": [{"id": "1"}]}])");
    row("empty settings", R"([{"group": [{"outPutNode": {}}]}])",
        R"([{"group": [{"outPutNode": {}}]}])");
    row("settings of a wrong type", R"([{"group": [{"outPutNode": "a"}]}])",
        R"([{"group": [{"outPutNode": "a"}]}])");
    row("no preset", R"([{"group": [7]}])", R"([{"group": [7]}])");
    row("no format", R"([7])", R"([7])");
    row("no group", R"([{"title": "MP4"}])", "[]");
    row("group of a wrong type", R"([{"title": "MP4", "group": {"id": "1"}}])",
        R"([{"title": "MP4", "group": {"id": "1"}}])");
}

void TestUserFile::recordsThatTheLibraryDropsAreUnusable()
{
    QFETCH(QByteArray, formats);
    QFETCH(QByteArray, unusable);
    QCOMPARE(unusableFormats(list(formats)), list(unusable));
}

QTEST_GUILESS_MAIN(TestUserFile)
#include "tst_userfile.moc"
