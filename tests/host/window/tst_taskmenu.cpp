#include "tests/host/window/listviewtest.h"

using namespace WindowUser;

/*! The menu of a row and the one that sorts. */
class TestTaskMenu : public ListViewTest
{
    Q_OBJECT

private Q_SLOTS:
    void aRightClickSelectsTheRowAndOpensItsMenu();
    void aRightClickOnTheSelectionKeepsIt();
    void everyEntryIsShownWhole();
    void theMenuKeyOpensTheMenuAtTheRow();
    void theKeysGoThroughTheEntriesThatMakeSense();
    void theListIsSortedFromTheMenuOfARow();
    void theButtonAboveTheListSorts();

private:
    /*! The name of the entry that the keys are at; empty if they are at none. */
    QString current() const;
};

QString TestTaskMenu::current() const
{
    QString name;
    for (QQuickItem *item : menuItems()) {
        name = item->property("highlighted").toBool() ? nameOf(item) : name;
    }
    return name;
}

void TestTaskMenu::aRightClickSelectsTheRowAndOpensItsMenu()
{
    clickRow("b.wav", {}, Qt::RightButton);
    QTRY_VERIFY(isMenuOpen());
    QCOMPARE(selected(), QStringLiteral("b"));
    QVERIFY(menuEntries().contains(QStringLiteral("Convert")));
    QVERIFY(!menuEntries().contains(QStringLiteral("Stop")));
    choose(QStringLiteral("Remove from the list"));
    QTRY_COMPARE(order(), QStringLiteral("ac"));
    QTRY_VERIFY(!isMenuOpen());
}

void TestTaskMenu::aRightClickOnTheSelectionKeepsIt()
{
    clickRow("a.wav");
    clickRow("b.wav", Qt::ControlModifier);
    clickRow("a.wav", {}, Qt::RightButton);
    QTRY_VERIFY(isMenuOpen());
    QCOMPARE(selected(), QStringLiteral("ab"));
    choose(QStringLiteral("Remove from the list"));
    QTRY_COMPARE(order(), QStringLiteral("c"));
}

void TestTaskMenu::everyEntryIsShownWhole()
{
    clickRow("b.wav", {}, Qt::RightButton);
    QTRY_VERIFY(isMenuOpen());
    for (QQuickItem *item : menuItems()) {
        const auto *texts = item->property("contentItem").value<QQuickItem *>();
        QVERIFY2(texts->implicitWidth() <= texts->width(), qPrintable(nameOf(item)));
    }
}

void TestTaskMenu::theMenuKeyOpensTheMenuAtTheRow()
{
    for (const bool isMenuKey : {true, false}) {
        clickRow("b.wav");
        if (isMenuKey) {
            QTest::keyClick(m_window, Qt::Key_Menu);
        } else {
            QTest::keyClick(m_window, Qt::Key_F10, Qt::ShiftModifier);
        }
        QTRY_VERIFY(isMenuOpen());
        const QRectF place = row("b.wav")->mapRectToScene(row("b.wav")->boundingRect());
        QVERIFY(place.contains(middleOf(menuItems().constFirst())));
        QTest::keyClick(m_window, Qt::Key_Escape);
        QTRY_VERIFY(!isMenuOpen());
        QVERIFY(row("b.wav")->hasActiveFocus());
    }
}

void TestTaskMenu::theKeysGoThroughTheEntriesThatMakeSense()
{
    clickRow("b.wav", {}, Qt::RightButton);
    QTRY_VERIFY(isMenuOpen());
    QStringList passed;
    for (int i = 0; i < menuEntries().size(); ++i) {
        QTest::keyClick(m_window, Qt::Key_Down);
        passed << current();
    }
    QCOMPARE(passed, menuEntries());
    QTest::keyClick(m_window, Qt::Key_Return);
    QTRY_COMPARE(order(), QStringLiteral("ac"));
}

void TestTaskMenu::theListIsSortedFromTheMenuOfARow()
{
    page().moveChosen(page().idAt(0), 0);
    QCOMPARE(order(), QStringLiteral("bca"));
    clickRow("b.wav", {}, Qt::RightButton);
    choose(QStringLiteral("Sort by"));
    choose(QStringLiteral("Name"));
    QTRY_COMPARE(order(), QStringLiteral("abc"));
    QTRY_VERIFY(!isMenuOpen());
}

void TestTaskMenu::theButtonAboveTheListSorts()
{
    page().moveChosen(page().idAt(0), 0);
    QVERIFY(click(m_window, QStringLiteral("Sort by")));
    QTRY_COMPARE(menuEntries(), (QStringList{QStringLiteral("Name"), QStringLiteral("Size"),
                                             QStringLiteral("Duration"), QStringLiteral("State")}));
    QTest::keyClick(m_window, Qt::Key_Down);
    QTest::keyClick(m_window, Qt::Key_Return);
    QTRY_COMPARE(order(), QStringLiteral("abc"));
    QTRY_VERIFY(!isMenuOpen());
}

QTEST_MAIN(TestTaskMenu)
#include "tst_taskmenu.moc"
