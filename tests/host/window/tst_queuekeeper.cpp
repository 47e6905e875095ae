#include "host/window/queuekeeper.h"

#include "tests/host/window/pagetest.h"
#include "tests/support/testfiles.h"

#include <QThread>

/*! What is left of the pages' lists after the program has ended. */
class TestQueueKeeper : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsEditedIsKeptWithoutAFlush();
    void bothPagesComeBack();
    void aResultComesBackWithItsFormat();
    void aSongKeepsItsFormatWhileItIsReadAgain();
    void aRunningTaskComesBackAsInterruptedAndGoesOn();
    void aWaitingTaskComesBackReady();
    void aDamagedFileIsReportedAndTheWindowStartsEmpty();

private:
    QString path() const { return m_files->filePath(QStringLiteral("queue.json")); }
    std::unique_ptr<QueueKeeper> keeper()
    {
        const QMap<QString, Page *> pages = {{QStringLiteral("converter"), m_converter.get()},
                                             {QStringLiteral("editor"), m_editor.get()}};
        return std::make_unique<QueueKeeper>(path(), pages);
    }
    /*! As if the program had ended here, and was started again. */
    void restart();
};

void TestQueueKeeper::restart()
{
    keeper()->flush();
    m_converter = std::make_unique<ConverterProxy>(*m_settings, *m_presets);
    m_editor = std::make_unique<EditorProxy>(*m_settings, *m_presets);
    keeper()->restore();
}

void TestQueueKeeper::whatIsEditedIsKeptWithoutAFlush()
{
    const auto kept = keeper();
    kept->restore();
    const int id = addReady(*m_converter, song());
    QTRY_VERIFY_WITH_TIMEOUT(contentOf(path()).contains("song.wav"), patience);
    m_converter->setConvertingListTaskFormat(id, flac);
    QTRY_VERIFY_WITH_TIMEOUT(contentOf(path()).contains(flac.toLatin1()), patience);
    m_converter->remove(id);
    QTRY_VERIFY_WITH_TIMEOUT(!contentOf(path()).contains("song.wav"), patience);
}

void TestQueueKeeper::bothPagesComeBack()
{
    addReady(*m_converter, song(QStringLiteral("b.wav")));
    addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int cut = addReady(*m_editor, song(QStringLiteral("c.wav")));
    m_editor->cut(cut, 0.25, 0.75);
    m_editor->setEditingListTaskFormat(cut, flac);
    restart();
    QCOMPARE(names(*m_converter), QStringList({QStringLiteral("b.wav"), QStringLiteral("a.wav")}));
    QCOMPARE(names(*m_editor), QStringList{QStringLiteral("c.wav")});
    const Task &kept = m_editor->tasks()->tasks().constFirst();
    QCOMPARE(kept.start, 0.25);
    QCOMPARE(kept.end, 0.75);
    QCOMPARE(kept.format, flac);
    QTRY_COMPARE_WITH_TIMEOUT(kept.state, Task::Ready, patience);
    m_editor->setEditorGlobalFormat(mp3);
    QCOMPARE(kept.format, flac);
}

void TestQueueKeeper::aResultComesBackWithItsFormat()
{
    const int id = addReady(*m_converter, song());
    m_converter->convertAll();
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    const Task before = task(*m_converter, id);
    m_settings->setConverterGlobalId(flac);
    restart();
    const Task &kept = m_converter->tasks()->tasks().constFirst();
    QTRY_VERIFY_WITH_TIMEOUT(!kept.facts.isEmpty(), patience);
    QCOMPARE(kept.state, Task::Converted);
    QCOMPARE(kept.target, before.target);
    QCOMPARE(kept.targetBytes, QFileInfo(before.target).size());
    QCOMPARE(kept.formatCaption, before.formatCaption);
    QCOMPARE(kept.formatIcon, before.formatIcon);
}

void TestQueueKeeper::aSongKeepsItsFormatWhileItIsReadAgain()
{
    m_converter->setConverterGlobalFormat(flac);
    m_converter->setConverterGlobalFormat(mp4);
    const Task before = task(*m_converter, addReady(*m_converter, song()));
    QCOMPARE(before.format, flac);
    restart();
    const Task &kept = m_converter->tasks()->tasks().constFirst();
    QCOMPARE(kept.state, Task::Reading);
    QCOMPARE(kept.format, flac);
    QCOMPARE(kept.formatCaption, before.formatCaption);
    QCOMPARE(kept.formatIcon, before.formatIcon);
}

void TestQueueKeeper::aRunningTaskComesBackAsInterruptedAndGoesOn()
{
    const int id = addReady(*m_converter, song());
    m_converter->convert(id);
    QCOMPARE(task(*m_converter, id).state, Task::Running);
    restart();
    const Task &kept = m_converter->tasks()->tasks().constFirst();
    QTRY_VERIFY_WITH_TIMEOUT(!kept.facts.isEmpty(), patience);
    QCOMPARE(kept.state, Task::Interrupted);
    QVERIFY(m_converter->canConvert());
    m_converter->convertAll();
    QTRY_COMPARE_WITH_TIMEOUT(kept.state, Task::Converted, patience);
}

void TestQueueKeeper::aWaitingTaskComesBackReady()
{
    for (int i = 0; i <= QThread::idealThreadCount(); ++i) {
        addReady(*m_converter, song(QStringLiteral("%1.wav").arg(i)));
    }
    m_converter->convertAll();
    QCOMPARE(m_converter->tasks()->tasks().constLast().state, Task::Waiting);
    restart();
    QTRY_COMPARE_WITH_TIMEOUT(m_converter->tasks()->tasks().constLast().state, Task::Ready,
                              patience);
}

void TestQueueKeeper::aDamagedFileIsReportedAndTheWindowStartsEmpty()
{
    QVERIFY(writeFile(path(), "{"));
    const auto kept = keeper();
    QSignalSpy noticed(kept.get(), &QueueKeeper::noticed);
    kept->restore();
    QCOMPARE(noticed.count(), 1);
    QVERIFY(noticed.at(0).at(0).toString().contains(QStringLiteral("queue.unreadable.json")));
    QCOMPARE(m_converter->tasks()->count(), 0);
    addReady(*m_converter, song());
    QTRY_VERIFY_WITH_TIMEOUT(contentOf(path()).contains("song.wav"), patience);
}

QTEST_MAIN(TestQueueKeeper)
#include "tst_queuekeeper.moc"
