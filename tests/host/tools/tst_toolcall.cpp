#include "host/tools/toolcall.h"

#include <QDir>
#include <QtTest>

class TestToolCall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ffmpegPrintsOnlyErrorsAndWaitsForNoKey();
    void ffprobePrintsOnlyErrorsBesideItsAnswer();
    void aPathIsAFileWhateverIsInIt();
};

void TestToolCall::ffmpegPrintsOnlyErrorsAndWaitsForNoKey()
{
    const ToolCall call = ffmpegCall({QStringLiteral("-encoders")});
    QCOMPARE(call.program, QStringLiteral("ffmpeg"));
    QCOMPARE(call.arguments.join(QLatin1Char(' ')),
             QStringLiteral("-nostdin -hide_banner -v error -encoders"));
}

void TestToolCall::ffprobePrintsOnlyErrorsBesideItsAnswer()
{
    const ToolCall call = ffprobeCall({QStringLiteral("-show_format")});
    QCOMPARE(call.program, QStringLiteral("ffprobe"));
    QCOMPARE(call.arguments.join(QLatin1Char(' ')),
             QStringLiteral("-hide_banner -v error -show_format"));
}

void TestToolCall::aPathIsAFileWhateverIsInIt()
{
    QCOMPARE(fileArgument(QStringLiteral("/a/-b:%d.mp4")), QStringLiteral("file:/a/-b:%d.mp4"));
    QCOMPARE(fileArgument(QStringLiteral("-y")),
             QStringLiteral("file:") + QDir::currentPath() + QStringLiteral("/-y"));
}

QTEST_GUILESS_MAIN(TestToolCall)
#include "tst_toolcall.moc"
