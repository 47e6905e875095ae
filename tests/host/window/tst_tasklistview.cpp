#include "tests/host/window/listviewtest.h"

using namespace WindowUser;

/*! How rows are selected, moved and removed. */
class TestTaskListView : public ListViewTest
{
    Q_OBJECT

private Q_SLOTS:
    void aClickSelectsOneAndModifiersMore();
    void theKeysSelectMoveAndRemove();
    void aRowIsDraggedByItsGrip();
    void aButtonUnderThePointerSaysWhatItDoes();
    void thePageKnowsTheFirstRowInSight();
};

void TestTaskListView::aClickSelectsOneAndModifiersMore()
{
    clickRow("a.wav");
    QCOMPARE(selected(), QStringLiteral("a"));
    clickRow("c.wav", Qt::ControlModifier);
    QCOMPARE(selected(), QStringLiteral("ac"));
    clickRow("a.wav", Qt::ShiftModifier);
    QCOMPARE(selected(), QStringLiteral("abc"));
    clickRow("b.wav");
    QCOMPARE(selected(), QStringLiteral("b"));
    QTest::keyClick(m_window, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(selected(), QStringLiteral("abc"));
    QVERIFY(!itemsNamed(m_window->contentItem(), QStringLiteral("3 of 3 selected")).isEmpty());
}

void TestTaskListView::theKeysSelectMoveAndRemove()
{
    clickRow("a.wav");
    QTest::keyClick(m_window, Qt::Key_Down);
    QCOMPARE(selected(), QStringLiteral("b"));
    QTest::keyClick(m_window, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(selected(), QStringLiteral("bc"));
    QTest::keyClick(m_window, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(selected(), QStringLiteral("bc"));
    QTest::keyClick(m_window, Qt::Key_Home);
    QCOMPARE(selected(), QStringLiteral("a"));
    QTest::keyClick(m_window, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(order(), QStringLiteral("bac"));
    QTest::keyClick(m_window, Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(order(), QStringLiteral("abc"));
    QTest::keyClick(m_window, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(m_window, Qt::Key_Delete);
    QCOMPARE(order(), QStringLiteral("c"));
    // The row below takes the place, so that Delete can be pressed again.
    QCOMPARE(selected(), QStringLiteral("c"));
    QTest::keyClick(m_window, Qt::Key_Escape);
    QCOMPARE(selected(), QString());
    QVERIFY(click(m_window, QStringLiteral("Undo")));
    QTRY_COMPARE(order(), QStringLiteral("abc"));
}

void TestTaskListView::aRowIsDraggedByItsGrip()
{
    clickRow("a.wav");
    const QPoint from = row("a.wav")->mapToScene(QPointF(8, 40)).toPoint();
    const QPoint to = row("c.wav")->mapToScene(QPointF(8, 90)).toPoint();
    QTest::mousePress(m_window, Qt::LeftButton, {}, from);
    for (int step = 1; step <= 4; ++step) {
        QTest::mouseMove(m_window, from + (to - from) * step / 4);
    }
    QTest::mouseRelease(m_window, Qt::LeftButton, {}, to);
    QTRY_COMPARE(order(), QStringLiteral("bca"));
}

void TestTaskListView::aButtonUnderThePointerSaysWhatItDoes()
{
    clickRow("a.wav");
    const QString name = QStringLiteral("Remove from the list");
    const auto shown = [&] { return itemsNamed(m_window->contentItem(), name); };
    QTRY_VERIFY(!shown().isEmpty());
    const int buttons = shown().size();
    QTest::mouseMove(m_window, middleOf(shown().constFirst()));
    QTRY_VERIFY(shown().size() > buttons);
    QTest::mouseMove(m_window, row("a.wav")->mapToScene(QPointF(200, 26)).toPoint());
    QTRY_COMPARE(shown().size(), buttons);
}

void TestTaskListView::thePageKnowsTheFirstRowInSight()
{
    const auto first = [this] { return page().property("firstInSight").toInt(); };
    m_window->setMinimumSize({1, 1});
    m_window->resize(1040, 320); // little more than a row
    clickRow("a.wav");
    QTest::keyClick(m_window, Qt::Key_End);
    QTRY_VERIFY(first() > 0);
    QTest::keyClick(m_window, Qt::Key_Home);
    QTRY_COMPARE(first(), 0);
}

QTEST_MAIN(TestTaskListView)
#include "tst_tasklistview.moc"
