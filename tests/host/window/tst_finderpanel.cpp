#include "host/app/languages.h"

#include "formats/proxy/formatsproxy.h"
#include "tests/host/window/findertest.h"

using namespace WindowUser;

/*! The panel that finds presets. */
class TestFinderPanel : public FinderTest
{
    Q_OBJECT

private Q_SLOTS:
    void enterGivesThePresetToAllFiles();
    void withASelectionOnlyThatGetsIt();
    void aDoubleClickIsAChoiceAndTheArrowsWalk();
    void escapeClosesAndChangesNothing();
    void whatCannotBeUsedIsNotTaken();
    void aFavoriteIsThereAfterARestart();
    void filtersAreToggledWithTheMouse();
    void anOwnPresetIsDuplicatedRenamedAndNoted();
    void aDeletionIsUndoneFromItsNoticeOrAfterARestart();
    void undoTakesBackWhatWasDoneLast();
    void aPresetInUseIsNotDeleted();
    void changesAreShownAndTakenBack();
    void nothingIsCutOffAtTheSmallestSize_data();
    void nothingIsCutOffAtTheSmallestSize();
};

void TestFinderPanel::enterGivesThePresetToAllFiles()
{
    find(QStringLiteral("flac"));
    QTest::keyClick(m_window, Qt::Key_Return);
    QTRY_VERIFY_WITH_TIMEOUT(!isOpen(), patience);
    QVERIFY2(formatOf(0).startsWith(QStringLiteral("Audio_FLAC")), qPrintable(formatOf(0)));
    QCOMPARE(formatOf(1), formatOf(0));
    QVERIFY(page().tasks()->tasks().at(0).ownFormats.isEmpty());
}

void TestFinderPanel::withASelectionOnlyThatGetsIt()
{
    page().selection()->set(page().tasks()->tasks().at(1).id);
    find(QStringLiteral("flac"));
    QTest::keyClick(m_window, Qt::Key_Return);
    QTRY_VERIFY_WITH_TIMEOUT(!isOpen(), patience);
    QCOMPARE(formatOf(0), mp3);
    QVERIFY2(formatOf(1).startsWith(QStringLiteral("Audio_FLAC")), qPrintable(formatOf(1)));
}

void TestFinderPanel::aDoubleClickIsAChoiceAndTheArrowsWalk()
{
    find(QStringLiteral("flac"));
    const QString second = m_main->presetFinder().idAt(1);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Return}) {
        QTest::keyClick(m_window, key);
    }
    QTRY_VERIFY_WITH_TIMEOUT(!isOpen(), patience);
    QCOMPARE(formatOf(0), second);

    find(QStringLiteral("flac"));
    QTRY_VERIFY_WITH_TIMEOUT(isShown(QStringLiteral("Keep original")), patience);
    const auto *title =
        itemsNamed(m_window->contentItem(), QStringLiteral("Keep original")).value(0);
    QVERIFY(title != nullptr);
    const QPoint place = middleOf(title);
    QTest::mouseDClick(m_window, Qt::LeftButton, {}, place);
    QTRY_VERIFY_WITH_TIMEOUT(!isOpen(), patience);
    QVERIFY2(formatOf(0).startsWith(QStringLiteral("Audio_FLAC")), qPrintable(formatOf(0)));
}

void TestFinderPanel::escapeClosesAndChangesNothing()
{
    find(QStringLiteral("flac"));
    press(m_window, Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!isOpen(), patience);
    QCOMPARE(formatOf(0), mp3);
}

void TestFinderPanel::whatCannotBeUsedIsNotTaken()
{
    page().selection()->set(page().tasks()->tasks().at(0).id);
    find(QStringLiteral("mkv"));
    QTRY_VERIFY_WITH_TIMEOUT(
        isShown(QStringLiteral("Can’t be used: %1")
                    .arg(m_main->presetFinder().problemWith(QStringLiteral("Video_MKV_001")))) &&
            !m_main->presetFinder().problemWith(QStringLiteral("Video_MKV_001")).isEmpty(),
        patience);
    QTest::keyClick(m_window, Qt::Key_Return);
    QVERIFY(isOpen());
    QCOMPARE(formatOf(0), mp3);
}

void TestFinderPanel::aFavoriteIsThereAfterARestart()
{
    find(QStringLiteral("flac"));
    QTest::keyClick(m_window, Qt::Key_D, Qt::ControlModifier);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(QStringLiteral("Remove from the favorites")), patience);
    openWindow();
    find({});
    QTRY_VERIFY_WITH_TIMEOUT(isShown(QStringLiteral("Favorites")), patience);
    QVERIFY(click(m_window, QStringLiteral("Remove from the favorites")));
    press(m_window, Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!isOpen(), patience);
    find({});
    QVERIFY(!isShown(QStringLiteral("Favorites")));
}

void TestFinderPanel::filtersAreToggledWithTheMouse()
{
    find(QStringLiteral("4k"));
    const int unfiltered = m_main->presetFinder().count();
    QVERIFY(click(m_window, QStringLiteral("AV1")));
    QTRY_VERIFY_WITH_TIMEOUT(m_main->presetFinder().count() < unfiltered, patience);
    QVERIFY(m_main->presetFinder().count() > 0);
    QVERIFY(click(m_window, QStringLiteral("AV1")));
    QTRY_COMPARE_WITH_TIMEOUT(m_main->presetFinder().count(), unfiltered, patience);
}

void TestFinderPanel::anOwnPresetIsDuplicatedRenamedAndNoted()
{
    find(QStringLiteral("flac"));
    choose("Duplicate");
    QTRY_COMPARE_WITH_TIMEOUT(ownTitles().size(), 1, patience);
    press(m_window, Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!isOpen(), patience);

    find({});
    QVERIFY(click(m_window, QStringLiteral("My presets")));
    waitForDrawing();
    QTRY_COMPARE_WITH_TIMEOUT(m_main->presetFinder().count(), 1, patience);
    QTest::keyClick(m_window, Qt::Key_F2);
    type(m_window, QStringLiteral("Copy for the car"));
    QTest::keyClick(m_window, Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(ownTitles(), QStringList{QStringLiteral("Copy for the car")},
                              patience);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(QStringLiteral("Copy for the car")), patience);
    choose("Note…");
    type(m_window, QStringLiteral("loud"));
    QTest::keyClick(m_window, Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(m_main->presetActions().note(ownIds().value(0)),
                              QStringLiteral("loud"), patience);
    // Escape gives up the typing only.
    QTest::keyClick(m_window, Qt::Key_F2);
    press(m_window, Qt::Key_Escape);
    QVERIFY(isOpen());
    QCOMPARE(ownTitles(), QStringList{QStringLiteral("Copy for the car")});
}

void TestFinderPanel::aDeletionIsUndoneFromItsNoticeOrAfterARestart()
{
    const QStringList mine = {QStringLiteral("Mine")};
    makeOwn(mine.constFirst());
    find(QStringLiteral("mine"));
    choose("Delete");
    QTRY_COMPARE_WITH_TIMEOUT(ownTitles(), QStringList(), patience);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(QStringLiteral("Deleted: Mine")), patience);
    QVERIFY(click(m_window, QStringLiteral("Undo"), 2)); // the first two are of the page below
    QTRY_COMPARE_WITH_TIMEOUT(ownTitles(), mine, patience);

    choose("Delete");
    QTRY_COMPARE_WITH_TIMEOUT(ownTitles(), QStringList(), patience);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(QStringLiteral("Deleted: Mine")), patience);
    openWindow();
    QTest::keyClick(m_window, Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(ownTitles(), mine, patience);
    QVERIFY(isShown(QStringLiteral("Undone: Mine")));
}

void TestFinderPanel::undoTakesBackWhatWasDoneLast()
{
    const QString own = makeOwn(QStringLiteral("Mine"));
    page().remove(page().tasks()->tasks().at(1).id);
    QTest::qWait(2);
    m_main->presetActions().remove(own);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(QStringLiteral("Deleted: Mine")), patience);
    QTest::keyClick(m_window, Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(ownTitles().size(), 1, patience);
    QCOMPARE(page().tasks()->count(), 1);
    QTest::keyClick(m_window, Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(page().tasks()->count(), 2, patience);
    QCOMPARE(ownTitles().size(), 1);
}

void TestFinderPanel::aPresetInUseIsNotDeleted()
{
    const QString own = m_main->presetActions().duplicate(QStringLiteral("Audio_FLAC_001"));
    page().setConverterGlobalFormat(own);
    page().convertAll();
    m_main->presetActions().remove(own);
    QCOMPARE(m_main->presetActions().title(own).isEmpty(), false);
    QVERIFY(m_main->dialog() != nullptr);
    m_main->dialog()->cancelClicked();
    page().cancelAll();
    QTRY_VERIFY_WITH_TIMEOUT(!page().isBusy(), patience);
}

void TestFinderPanel::changesAreShownAndTakenBack()
{
    const QString own = makeOwn(QStringLiteral("Mine"));
    FormatsProxy &formats = *FormatsProxy::getInstance();
    QVariantMap values = formats.getFormat(QStringLiteral("video"), QStringLiteral("MP4"), own);
    values.insert(QStringLiteral("title"), QStringLiteral("Mine"));
    for (const auto &[key, value] :
         {std::pair("videoEncoder", "h264"), std::pair("videoResolution", "854x480"),
          std::pair("videoFrameRate", "25"), std::pair("videoBitrateMid", "4000"),
          std::pair("audioEncoder", "aac"), std::pair("audioChannel", "2"),
          std::pair("audioSampleRate", "48000"), std::pair("audioBitrate", "160")}) {
        values.insert(QLatin1String(key), QString::fromLatin1(value));
    }
    formats.changeUserDefineFormat(QStringLiteral("MP4"), own, values);
    QCOMPARE(m_main->presetActions().differences(own).size(), 2);
    find(QStringLiteral("mine"));
    choose("What has been changed…");
    QTRY_VERIFY_WITH_TIMEOUT(m_main->dialog() != nullptr, patience);
    QQuickWindow *dialog = m_main->dialog()->window();
    QVERIFY(click(dialog, QStringLiteral("Take back")));
    QTRY_COMPARE_WITH_TIMEOUT(m_main->presetActions().differences(own).size(), 1, patience);
    QCOMPARE(m_main->presetActions().differences(own).constFirst().toMap().value(
                 QStringLiteral("label")),
             QVariant(QStringLiteral("Frame rate")));
    QVERIFY(click(dialog, QStringLiteral("Take back")));
    QTRY_VERIFY_WITH_TIMEOUT(m_main->presetActions().differences(own).isEmpty(), patience);
    m_main->dialog()->cancelClicked();
}

void TestFinderPanel::nothingIsCutOffAtTheSmallestSize_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : Languages::all()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void TestFinderPanel::nothingIsCutOffAtTheSmallestSize()
{
    QFETCH(QString, language);
    Languages::install(language);
    openWindow();
    m_main->presetActions().setNote(makeOwn(QStringLiteral("Mine")),
                                    QStringLiteral("fits on the old tablet"));
    m_window->resize(m_window->minimumSize());
    find({});
    const QObject *panel = m_window->property("finder").value<QObject *>();
    const auto *content = panel->property("contentItem").value<QQuickItem *>();
    const std::function<void(const QQuickItem *)> check = [&](const QQuickItem *item) {
        if (!item->isVisible()) {
            return;
        }
        if (item->inherits("QQuickText")) {
            QVERIFY2(!item->property("truncated").toBool(),
                     qPrintable(item->property("text").toString()));
        }
        for (const QQuickItem *child : item->childItems()) {
            check(child);
        }
    };
    QTRY_VERIFY_WITH_TIMEOUT(content->isVisible(), patience);
    check(content);
    Languages::install(QStringLiteral("en"));
}

QTEST_MAIN(TestFinderPanel)
#include "tst_finderpanel.moc"
