#include "host/window/taskselection.h"

#include <QtTest>

#include <memory>

/*! Three tasks, named a, b and c, and which of them are selected. */
class TestTaskSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void settingSelectsOneAlone();
    void togglingAddsAndTakesAway();
    void extendingSelectsAllInBetween();
    void allCanBeSelectedAndNone();
    void aTaskOutsideTheSelectionIsMeantAlone();
    void unknownTasksChangeNothing();

private:
    QString selected() const;

    std::unique_ptr<TaskList> m_list;
    std::unique_ptr<TaskSelection> m_selection;
    int a = 0;
    int b = 0;
    int c = 0;
};

void TestTaskSelection::init()
{
    m_selection.reset();
    m_list = std::make_unique<TaskList>();
    m_selection = std::make_unique<TaskSelection>(*m_list);
    const auto add = [this](const char *name) {
        Task task;
        task.source = QString::fromLatin1(name);
        return m_list->add(task);
    };
    a = add("a");
    b = add("b");
    c = add("c");
}

QString TestTaskSelection::selected() const
{
    QString names;
    for (const Task &task : m_list->tasks()) {
        names += task.isSelected ? task.source : QString();
    }
    return names;
}

void TestTaskSelection::settingSelectsOneAlone()
{
    m_selection->set(a);
    m_selection->set(b);
    QCOMPARE(selected(), QStringLiteral("b"));
    QCOMPARE(m_selection->count(), 1);
}

void TestTaskSelection::togglingAddsAndTakesAway()
{
    QSignalSpy changes(m_selection.get(), &TaskSelection::changed);
    m_selection->set(a);
    m_selection->toggle(c);
    QCOMPARE(selected(), QStringLiteral("ac"));
    m_selection->toggle(a);
    QCOMPARE(selected(), QStringLiteral("c"));
    QCOMPARE(changes.count(), 3);
}

void TestTaskSelection::extendingSelectsAllInBetween()
{
    m_selection->set(c);
    m_selection->extendTo(a);
    QCOMPARE(selected(), QStringLiteral("abc"));
    // From the same start to the other side.
    m_selection->set(b);
    m_selection->extendTo(c);
    m_selection->extendTo(a);
    QCOMPARE(selected(), QStringLiteral("ab"));
}

void TestTaskSelection::allCanBeSelectedAndNone()
{
    m_selection->selectAll();
    QCOMPARE(selected(), QStringLiteral("abc"));
    m_selection->clear();
    QCOMPARE(selected(), QString());
}

void TestTaskSelection::aTaskOutsideTheSelectionIsMeantAlone()
{
    m_selection->set(a);
    m_selection->toggle(c);
    QCOMPARE(m_selection->with(c), QVector<int>({a, c}));
    QCOMPARE(m_selection->with(b), QVector<int>{b});
    QCOMPARE(m_selection->with(c + 1000), QVector<int>());
}

void TestTaskSelection::unknownTasksChangeNothing()
{
    m_selection->set(a);
    for (const int id : {0, -1, c + 1000}) {
        m_selection->set(id);
        m_selection->toggle(id);
        m_selection->extendTo(id);
    }
    QCOMPARE(selected(), QStringLiteral("a"));
}

QTEST_GUILESS_MAIN(TestTaskSelection)
#include "tst_taskselection.moc"
