#include "host/tools/toolcall.h"

#include <QDir>
#include <QtTest>

class TestToolCall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ffmpegPrintsOnlyErrorsAndReadsNoInput();
    void ffprobePrintsOnlyResultsAndErrors();
    void anyPathIsTakenForAFile();
};

void TestToolCall::ffmpegPrintsOnlyErrorsAndReadsNoInput()
{
    const ToolCall call = ffmpegCall({QStringLiteral("-encoders")});
    QCOMPARE(call.program, QStringLiteral("ffmpeg"));
    QCOMPARE(call.arguments.join(QLatin1Char(' ')),
             QStringLiteral("-nostdin -hide_banner -v error -encoders"));
}

void TestToolCall::ffprobePrintsOnlyResultsAndErrors()
{
    const ToolCall call = ffprobeCall({QStringLiteral("-show_format")});
    QCOMPARE(call.program, QStringLiteral("ffprobe"));
    QCOMPARE(call.arguments.join(QLatin1Char(' ')),
             QStringLiteral("-hide_banner -v error -show_format"));
}

void TestToolCall::anyPathIsTakenForAFile()
{
    QCOMPARE(fileArgument(QStringLiteral("/a/-b:%d.mp4")), QStringLiteral("file:/a/-b:%d.mp4"));
    QCOMPARE(fileArgument(QStringLiteral("-y")),
             QStringLiteral("file:") + QDir::currentPath() + QStringLiteral("/-y"));
}

QTEST_GUILESS_MAIN(TestToolCall)
#include "tst_toolcall.moc"
