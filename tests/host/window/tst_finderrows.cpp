#include "tests/host/window/findertest.h"

#include "host/app/languages.h"

#include "tests/support/mediaclips.h"

#include <QDir>

using namespace WindowUser;

/*! What the rows of the panel that finds presets offer: their grip, their menu and the preset that
 *  stands in for one that can't be used. */
class TestFinderRows : public FinderTest
{
    Q_OBJECT

private Q_SLOTS:
    void ownPresetsAreDraggedToAnotherPlace();
    void escapeGivesADragUp();
    void aDragEndsWithinItsFormat();
    void onlyOwnPresetsWithoutASearchAreDragged();
    void theMenuHasNoGaps();
    void aPresetIsTriedOnTheSelectedFileOrElseTheFirst();
    void withoutAFileNothingIsTriedAndTheMenuSaysWhy();
    void aPresetThatTheFileCannotHaveSaysWhyAndNamesOneThatItCan();
    void theNearestPresetStandsInForOneThatThisFfmpegCannotWrite();

private:
    QQuickItem *rowOf(const QString &presetId) const;
    /*! Presses the grip of a row, and moves it to the upper or lower half of another one. */
    void drag(const QString &presetId, const QString &other, bool isBelow);
    void release();
    /*! Whether the line that shows where a drag lands is there. */
    bool isLineShown() const;

    QPoint m_place; // of the mouse, while it drags
};

QQuickItem *TestFinderRows::rowOf(const QString &presetId) const
{
    QQuickItem *found = nullptr;
    const std::function<void(QQuickItem *)> look = [&](QQuickItem *item) {
        if (item->isVisible() && item->property("presetId").toString() == presetId &&
            item->property("canMove").isValid()) {
            found = item;
        }
        for (QQuickItem *child : item->childItems()) {
            look(child);
        }
    };
    look(m_window->contentItem());
    return found;
}

void TestFinderRows::drag(const QString &presetId, const QString &other, bool isBelow)
{
    const QQuickItem *row = rowOf(presetId);
    const QQuickItem *target = rowOf(other);
    const QPoint grip = row->mapToScene(QPointF(8, row->height() / 2)).toPoint();
    const double y = target->height() * (isBelow ? 0.75 : 0.25);
    QTest::mousePress(m_window, Qt::LeftButton, {}, grip);
    QTest::mouseMove(m_window, grip + QPoint(0, 3));
    m_place = target->mapToScene(QPointF(8, y)).toPoint();
    QTest::mouseMove(m_window, m_place);
}

void TestFinderRows::release()
{
    QTest::mouseRelease(m_window, Qt::LeftButton, {}, m_place);
}

bool TestFinderRows::isLineShown() const
{
    const auto *line = m_window->findChild<QQuickItem *>(QStringLiteral("dropLine"));
    return line->isVisible();
}

void TestFinderRows::ownPresetsAreDraggedToAnotherPlace()
{
    QStringList ids;
    for (const char *title : {"One", "Two", "Three"}) {
        ids << makeOwn(QString::fromLatin1(title));
    }
    find({});
    drag(ids.at(0), ids.at(2), true);
    QVERIFY(isLineShown());
    release();
    QVERIFY(!isLineShown());
    const QStringList after = {ids.at(1), ids.at(2), ids.at(0)};
    QCOMPARE(ownIds(), after);
    const PresetFinder &finder = m_main->presetFinder();
    QTRY_COMPARE_WITH_TIMEOUT(finder.rowOf(ids.at(0)), finder.rowOf(ids.at(2)) + 1, patience);
    waitForDrawing();
    drag(ids.at(0), ids.at(1), false);
    QVERIFY(isLineShown());
    release();
    QCOMPARE(ownIds(), ids);
}

void TestFinderRows::escapeGivesADragUp()
{
    const QStringList ids = {makeOwn(QStringLiteral("One")), makeOwn(QStringLiteral("Two"))};
    find({});
    drag(ids.at(0), ids.at(1), true);
    QVERIFY(isLineShown());
    QTest::keyClick(m_window, Qt::Key_Escape);
    QVERIFY(!isLineShown());
    QTest::mouseMove(m_window, middleOf(rowOf(ids.at(1))) + QPoint(0, 5));
    QVERIFY(!isLineShown());
    release();
    QCOMPARE(ownIds(), ids);
    QVERIFY(isOpen());
}

void TestFinderRows::aDragEndsWithinItsFormat()
{
    const QStringList ids = {makeOwn(QStringLiteral("One")),
                             m_main->presetActions().duplicate(QStringLiteral("Video_MKV_001"))};
    find({});
    drag(ids.at(0), ids.at(1), true);
    QVERIFY(!isLineShown());
    release();
    QCOMPARE(ownIds(), ids);
}

void TestFinderRows::onlyOwnPresetsWithoutASearchAreDragged()
{
    m_main->presetActions().setFavorite(mp3, true);
    const QString own = makeOwn(QStringLiteral("Mine"));
    find({});
    QVERIFY(rowOf(own)->property("canMove").toBool());
    QVERIFY(!rowOf(mp3)->property("canMove").toBool());
    type(m_window, QStringLiteral("mine"));
    waitForDrawing();
    QVERIFY(!rowOf(own)->property("canMove").toBool());
}

void TestFinderRows::theMenuHasNoGaps()
{
    find(QStringLiteral("flac"));
    const QQuickItem *above = menuEntry("Duplicate");
    QVERIFY(above != nullptr);
    const auto *menu = m_window->findChild<QObject *>(QStringLiteral("presetMenu"));
    const QList<QQuickItem *> below =
        itemsNamed(menu->property("contentItem").value<QQuickItem *>(),
                   QStringLiteral("Default on the command line for"));
    QVERIFY(!below.isEmpty());
    QVERIFY(middleOf(below.constFirst()).y() - middleOf(above).y() <= above->height() + 8);
}

void TestFinderRows::aPresetIsTriedOnTheSelectedFileOrElseTheFirst()
{
    for (const char *name : {"a.wav", "b.wav"}) {
        find(QStringLiteral("flac"));
        choose("Try 10 seconds");
        const QString done = QStringLiteral("All of %1 would be").arg(QString::fromLatin1(name));
        QTRY_VERIFY_WITH_TIMEOUT(page().offer()->text().startsWith(done), patience);
        press(m_window, Qt::Key_Escape);
        QTRY_VERIFY_WITH_TIMEOUT(!isOpen(), patience);
        page().selection()->set(page().tasks()->tasks().at(1).id);
    }
    QCOMPARE(formatOf(0), mp3);
    takeWarnings(); // where there is no player
}

void TestFinderRows::withoutAFileNothingIsTriedAndTheMenuSaysWhy()
{
    page().selection()->selectAll();
    page().removeChosen(page().idAt(0));
    find(QStringLiteral("flac"));
    const QQuickItem *entry = menuEntry("Try 10 seconds");
    QVERIFY(entry != nullptr);
    QVERIFY(!entry->isEnabled());
    QVERIFY(isShown(QStringLiteral("no file yet")));
}

void TestFinderRows::aPresetThatTheFileCannotHaveSaysWhyAndNamesOneThatItCan()
{
    page().selection()->set(page().tasks()->tasks().at(0).id);
    find(QStringLiteral("mkv"));
    const QString id = m_main->presetFinder().idAt(0);
    QTRY_VERIFY_WITH_TIMEOUT(
        m_main->presetFinder().problemWith(id).startsWith(QStringLiteral("has no video")),
        patience);
    QTRY_VERIFY_WITH_TIMEOUT(
        isShown(QStringLiteral("Can’t be used: %1").arg(m_main->presetFinder().problemWith(id))),
        patience);
    // No preset for video suits a song.
    const QString nearest = rowOf(id)->property("nearest").toString();
    QVERIFY(!nearest.isEmpty());
    QCOMPARE(m_main->presetFinder().problemWith(nearest), QString());
}

void TestFinderRows::theNearestPresetStandsInForOneThatThisFfmpegCannotWrite()
{
    const QString folder = m_work.filePath(QStringLiteral("bin"));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(MediaClips::makeStandIn(folder, QStringLiteral("exec \"$REAL\" \"$@\""),
                                    QStringLiteral("libmp3lame")));
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", MediaClips::pathWith(folder));
    page().setConverterGlobalFormat(QStringLiteral("Audio_FLAC_001"));
    find(QStringLiteral("mp3"));
    PresetFinder &finder = m_main->presetFinder();
    const QString id = finder.idAt(0);
    QTRY_VERIFY_WITH_TIMEOUT(!finder.problemWith(id).isEmpty(), patience);
    const QString nearest = finder.nearestTo(id);

    QVERIFY(!nearest.isEmpty());
    QVERIFY(isShown(QStringLiteral("Can’t be used: %1").arg(finder.problemWith(id))));
    QVERIFY(click(m_window, QStringLiteral("Use %1").arg(finder.caption(nearest))));
    QTRY_VERIFY_WITH_TIMEOUT(!isOpen(), patience);
    qputenv("PATH", before);
    QCOMPARE(formatOf(0), nearest);
}

QTEST_MAIN(TestFinderRows)
#include "tst_finderrows.moc"
