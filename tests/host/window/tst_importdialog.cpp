#include "host/app/languages.h"
#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"
#include "host/window/presetactions.h"
#include "host/window/presetfinder.h"

#include "tests/host/window/windowuser.h"
#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"

#include <QAccessible>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

using namespace WindowUser;

/*! The dialog that shows files of presets before they are imported, under mouse and keys. */
class TestImportDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void aDropIsShownAndItsMediaAreAdded();
    void escapeWritesNothing();
    void importWritesAllAndUndoTakesAllBack();
    void aConflictIsDecidedWithTheKeys_data();
    void aConflictIsDecidedWithTheKeys();
    void whatIsSkippedAltogetherIsSaid();
    void whatTheUserHasIsNotOffered();
    void aRowOpensToWhatBecomesOfItsSettings();
    void aSinglePresetIsOpenAtOnce();
    void refusedOnesAreToldAndTheOthersImported();
    void withoutAnythingToImportReturnCloses();
    void rowsAreReadOut();
    void nothingIsCutOff_data();
    void nothingIsCutOff();

private:
    QString path(const QString &name) const { return m_work.filePath(name); }
    /*! A file of presets for MP4 with these titles. */
    QUrl presetFile(const QString &name, const QStringList &titles, int kbps = 1500) const;
    QUrl fileOf(const QString &name, const QByteArray &content) const;
    /*! Presets of HandBrake's, each with settings that are approximated and lost. */
    QUrl handBrakeFile(int count) const;
    /*! Drops the files on the window, and waits for the dialog. */
    void show(const QList<QUrl> &files);
    QQuickWindow *dialog() const { return m_main->dialog()->window(); }
    bool isShown(const QString &text) const
    {
        return !itemsNamed(dialog()->contentItem(), text).isEmpty();
    }
    void waitUntilItCloses() const
    {
        QTRY_VERIFY_WITH_TIMEOUT(m_main->dialog() == nullptr, patience);
    }
    /*! Titles and video bitrates of the user's presets, as they were saved. */
    QStringList saved() const;

    QTemporaryDir m_work;
    std::unique_ptr<MainWindow> m_main;
    QQuickWindow *m_window = nullptr;
};

void TestImportDialog::initTestCase()
{
    Languages::install(QStringLiteral("en"));
    QVERIFY(MediaClips::makeSong(path(QStringLiteral("song.wav"))));
    collectWarnings();
}

void TestImportDialog::init()
{
    QDir(path(QStringLiteral("config"))).removeRecursively();
    m_main = std::make_unique<MainWindow>(path(QStringLiteral("config")));
    QVERIFY(m_main->open());
    m_window = m_main->window();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void TestImportDialog::cleanup()
{
    // The library keeps the user's presets for the next window of this process.
    PresetFinder &finder = m_main->presetFinder();
    finder.search({}, QStringLiteral("own"), {}, {});
    QStringList own;
    for (int row = 0; row < finder.rowCount(); ++row) {
        own << finder.idAt(row);
    }
    for (const QString &id : qAsConst(own)) {
        m_main->presetActions().remove(id);
    }
    m_main.reset();
    QCOMPARE(takeWarnings(), QString());
}

QUrl TestImportDialog::fileOf(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) >= 0;
    return isWritten ? QUrl::fromLocalFile(file.fileName()) : QUrl();
}

QUrl TestImportDialog::presetFile(const QString &name, const QStringList &titles, int kbps) const
{
    QJsonArray list;
    for (const QString &title : titles) {
        list.append(
            QJsonObject{{QStringLiteral("title"), title},
                        {QStringLiteral("format"), QStringLiteral("MP4")},
                        {QStringLiteral("base"), QStringLiteral("Video_MP4_005")},
                        {QStringLiteral("extension"), QStringLiteral("mp4")},
                        {QStringLiteral("settings"),
                         QJsonObject{{QStringLiteral("video-encoder"), QStringLiteral("h264")},
                                     {QStringLiteral("video-bitrate"), QString::number(kbps)}}}});
    }
    return fileOf(name, QJsonDocument(QJsonObject{{QStringLiteral("version"), 1},
                                                  {QStringLiteral("presets"), list}})
                            .toJson());
}

QUrl TestImportDialog::handBrakeFile(int count) const
{
    QJsonArray list;
    for (int number = 1; number <= count; ++number) {
        list.append(
            QJsonObject{{QStringLiteral("PresetName"), QStringLiteral("Film %1").arg(number)},
                        {QStringLiteral("FileFormat"), QStringLiteral("av_mp4")},
                        {QStringLiteral("VideoEncoder"), QStringLiteral("x264")},
                        {QStringLiteral("VideoQualityType"), 2},
                        {QStringLiteral("VideoQualitySlider"), 22.0},
                        {QStringLiteral("AudioTrackSelectionBehavior"), QStringLiteral("all")},
                        {QStringLiteral("PicturePAR"), QStringLiteral("auto")},
                        {QStringLiteral("VideoGrayScale"), true}});
    }
    return fileOf(QStringLiteral("handbrake.json"),
                  QJsonDocument(QJsonObject{{QStringLiteral("PresetList"), list},
                                            {QStringLiteral("VersionMajor"), 47}})
                      .toJson());
}

void TestImportDialog::show(const QList<QUrl> &files)
{
    drop(m_window, files);
    QTRY_VERIFY_WITH_TIMEOUT(
        m_main->dialog() != nullptr && QGuiApplication::focusWindow() == dialog(), patience);
}

QStringList TestImportDialog::saved() const
{
    QTest::qWait(0); // until it is saved
    QFile file(path(QStringLiteral("config/formatCache.json")));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QStringList lines;
    const QJsonArray formats = QJsonDocument::fromJson(file.readAll()).array();
    for (const QJsonValue &format : formats) {
        const QJsonArray presets = format.toObject().value(QLatin1String("group")).toArray();
        for (const QJsonValue &preset : presets) {
            const QJsonObject record = preset.toObject();
            lines << QStringLiteral("%1: %2").arg(record.value(QLatin1String("title")).toString(),
                                                  record.value(QLatin1String("outPutNode"))
                                                      .toObject()
                                                      .value(QLatin1String("videoParam"))
                                                      .toObject()
                                                      .value(QLatin1String("bitrateKbps"))
                                                      .toVariant()
                                                      .toString());
        }
    }
    return lines;
}

void TestImportDialog::aDropIsShownAndItsMediaAreAdded()
{
    show({presetFile(QStringLiteral("two.json"), {QStringLiteral("One"), QStringLiteral("Two")}),
          QUrl::fromLocalFile(path(QStringLiteral("song.wav"))),
          fileOf(QStringLiteral("profiles.xml"), "<weather/>")});
    QVERIFY(isShown(QStringLiteral("One")));
    QVERIFY(isShown(QStringLiteral("Two")));
    QVERIFY(isShown(QStringLiteral("new: 2  ·  refused: 1")));
    QCOMPARE(m_main->converter().tasks()->count(), 1);
}

void TestImportDialog::escapeWritesNothing()
{
    show({presetFile(QStringLiteral("one.json"), {QStringLiteral("One")})});
    qInfo() << dialog()->activeFocusItem() << dialog()->isActive()
            << QGuiApplication::focusWindow();
    press(dialog(), Qt::Key_Escape);
    waitUntilItCloses();
    QCOMPARE(saved(), QStringList());
}

void TestImportDialog::importWritesAllAndUndoTakesAllBack()
{
    show({presetFile(QStringLiteral("two.json"), {QStringLiteral("One"), QStringLiteral("Two")})});
    QCOMPARE(saved(), QStringList());
    QVERIFY(click(dialog(), QStringLiteral("Import")));
    waitUntilItCloses();
    const QStringList both = {QStringLiteral("One: 1500"), QStringLiteral("Two: 1500")};
    QTRY_COMPARE_WITH_TIMEOUT(saved(), both, patience);
    QVERIFY(!itemsNamed(m_window->contentItem(), QStringLiteral("Presets imported: 2")).isEmpty());
    QVERIFY(click(m_window, QStringLiteral("Undo")));
    QTRY_COMPARE_WITH_TIMEOUT(saved(), QStringList(), patience);
}

void TestImportDialog::aConflictIsDecidedWithTheKeys_data()
{
    QTest::addColumn<int>("steps");
    QTest::addColumn<QStringList>("presets");
    const QString old = QStringLiteral("Mine: 1500");
    const QString other = QStringLiteral("Other: 2500");
    QTest::newRow("keep both") << 0 << QStringList{old, QStringLiteral("Mine (2): 2500"), other};
    QTest::newRow("replace") << 1 << QStringList{QStringLiteral("Mine: 2500"), other};
    QTest::newRow("skip") << 2 << QStringList{old, other};
}

void TestImportDialog::aConflictIsDecidedWithTheKeys()
{
    QFETCH(int, steps);
    show({presetFile(QStringLiteral("mine.json"), {QStringLiteral("Mine")})});
    press(dialog(), Qt::Key_Return);
    waitUntilItCloses();
    show({presetFile(QStringLiteral("both.json"), {QStringLiteral("Mine"), QStringLiteral("Other")},
                     2500)});
    QVERIFY(isShown(QStringLiteral("new: 1  ·  another one is there: 1")));
    // From the button that imports, past the one that cancels, to the choice.
    QTest::keyClick(dialog(), Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(dialog(), Qt::Key_Backtab, Qt::ShiftModifier);
    for (int step = 0; step < steps; ++step) {
        QTest::keyClick(dialog(), Qt::Key_Down);
    }
    QTest::keyClick(dialog(), Qt::Key_Tab);
    QTest::keyClick(dialog(), Qt::Key_Tab);
    press(dialog(), Qt::Key_Return);
    waitUntilItCloses();
    QTEST(saved(), "presets");
}

void TestImportDialog::whatIsSkippedAltogetherIsSaid()
{
    const QStringList title = {QStringLiteral("Mine")};
    show({presetFile(QStringLiteral("mine.json"), title)});
    press(dialog(), Qt::Key_Return);
    waitUntilItCloses();
    show({presetFile(QStringLiteral("mine.json"), title, 2500)});
    QTest::keyClick(dialog(), Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(dialog(), Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(dialog(), Qt::Key_End);
    QVERIFY(click(dialog(), QStringLiteral("Import")));
    waitUntilItCloses();
    QVERIFY(
        !itemsNamed(m_window->contentItem(), QStringLiteral("No preset was imported.")).isEmpty());
    QCOMPARE(saved(), QStringList{QStringLiteral("Mine: 1500")});
}

void TestImportDialog::whatTheUserHasIsNotOffered()
{
    const QUrl file = presetFile(QStringLiteral("one.json"), {QStringLiteral("One")});
    show({file});
    press(dialog(), Qt::Key_Return);
    waitUntilItCloses();
    show({file});
    QVERIFY(isShown(QStringLiteral("already there")));
    QVERIFY(!isShown(QStringLiteral("Import")));
    press(dialog(), Qt::Key_Return);
    waitUntilItCloses();
    QCOMPARE(saved().size(), 1);
}

void TestImportDialog::aRowOpensToWhatBecomesOfItsSettings()
{
    show({handBrakeFile(2)});
    const QString details = QStringLiteral("approximated:\n"
                                           "    PicturePAR: auto  →  square pixels in a picture of "
                                           "the same shape\n"
                                           "lost:\n"
                                           "    VideoGrayScale: true  →  the picture stays in "
                                           "colour");
    QVERIFY(isShown(QStringLiteral("approximated: 1  ·  lost: 1")));
    QVERIFY(!isShown(details));
    QTest::keyClick(dialog(), Qt::Key_Tab);
    QTest::keyClick(dialog(), Qt::Key_Down);
    QTest::keyClick(dialog(), Qt::Key_Space);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(details), patience);
    QTest::keyClick(dialog(), Qt::Key_Return);
    QTRY_VERIFY_WITH_TIMEOUT(!isShown(details), patience);
    QVERIFY(click(dialog(), QStringLiteral("Film 1")));
    QTRY_VERIFY_WITH_TIMEOUT(isShown(details), patience);
    QCOMPARE(saved(), QStringList());
}

void TestImportDialog::aSinglePresetIsOpenAtOnce()
{
    show({handBrakeFile(1)});
    QVERIFY(itemsNamed(dialog()->contentItem(), QStringLiteral("Film 1")).size() == 1);
    const QList<QQuickItem *> rows =
        itemsNamed(dialog()->contentItem(), QStringLiteral("Film 1, MP4, new, approximated: 1  ·  "
                                                           "lost: 1"));
    QCOMPARE(rows.size(), 1);
    QVERIFY(rows.constFirst()->property("isOpen").toBool());
}

void TestImportDialog::refusedOnesAreToldAndTheOthersImported()
{
    show({fileOf(QStringLiteral("broken.json"), "{\"presets\": ["),
          presetFile(QStringLiteral("one.json"), {QStringLiteral("One")})});
    QVERIFY(isShown(QStringLiteral("broken.json")));
    QVERIFY(isShown(QStringLiteral("new: 1  ·  refused: 1")));
    press(dialog(), Qt::Key_Return);
    waitUntilItCloses();
    QCOMPARE(saved(), QStringList{QStringLiteral("One: 1500")});
}

void TestImportDialog::withoutAnythingToImportReturnCloses()
{
    show({fileOf(QStringLiteral("broken.json"), "{\"presets\": [")});
    QVERIFY(!isShown(QStringLiteral("Import")));
    press(dialog(), Qt::Key_Return);
    waitUntilItCloses();
}

void TestImportDialog::rowsAreReadOut()
{
    show({handBrakeFile(2)});
    QVERIFY(isShown(QStringLiteral("Import presets, new: 2"))); // the list
    QList<QQuickItem *> rows = itemsNamed(
        dialog()->contentItem(), QStringLiteral("Film 2, MP4, new, approximated: 1  ·  lost: 1"));
    QCOMPARE(rows.size(), 1);
    QAccessibleInterface *row = QAccessible::queryAccessibleInterface(rows.constFirst());
    QCOMPARE(row->role(), QAccessible::ListItem);
    QCOMPARE(row->text(QAccessible::Description), QString());
    row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY_WITH_TIMEOUT(
        row->text(QAccessible::Description).contains(QStringLiteral("VideoGrayScale: true")),
        patience);
}

void TestImportDialog::nothingIsCutOff_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : Languages::all()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void TestImportDialog::nothingIsCutOff()
{
    QFETCH(QString, language);
    show({presetFile(QStringLiteral("mine.json"), {QStringLiteral("Mine")})});
    press(dialog(), Qt::Key_Return);
    waitUntilItCloses();
    Languages::install(language);
    show({presetFile(QStringLiteral("mine.json"), {QStringLiteral("Mine")}, 2500), handBrakeFile(1),
          fileOf(QStringLiteral("broken.json"), "{\"presets\": [")});
    QTest::keyClick(dialog(), Qt::Key_Tab);
    QTest::keyClick(dialog(), Qt::Key_Down);
    QTest::keyClick(dialog(), Qt::Key_Space);
    const std::function<void(const QQuickItem *)> check = [&](const QQuickItem *item) {
        if (item->isVisible() && item->inherits("QQuickText")) {
            QVERIFY2(!item->property("truncated").toBool(),
                     qPrintable(item->property("text").toString()));
        }
        for (const QQuickItem *child : item->childItems()) {
            check(child);
        }
    };
    check(dialog()->contentItem());
    Languages::install(QStringLiteral("en"));
}

QTEST_MAIN(TestImportDialog)
#include "tst_importdialog.moc"
