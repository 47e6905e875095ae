#ifndef TESTS_SUPPORT_MESSAGELOG_H
#define TESTS_SUPPORT_MESSAGELOG_H

#include <QStringList>
#include <QtGlobal>

/*!
 * Captures log messages, instead of printing them, while it exists. A test takes the lines that it
 * expects; any other line fails the test in its cleanup():
 *
 *     void init() { m_log.emplace(); }
 *     void cleanup() { QCOMPARE(m_log->takeAll(), QStringList()); m_log.reset(); }
 */
class MessageLog
{
    Q_DISABLE_COPY(MessageLog)

public:
    MessageLog()
        : m_previous(qInstallMessageHandler(&MessageLog::keep))
    {
        lines().clear();
    }
    ~MessageLog() { qInstallMessageHandler(m_previous); }

    /*! The lines so far, each as "debug: text", "info: text", "warning: text", "critical: text". */
    [[nodiscard]] QStringList takeAll()
    {
        QStringList taken;
        taken.swap(lines());
        return taken;
    }

private:
    static QStringList &lines()
    {
        static QStringList kept;
        return kept;
    }

    static void keep(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        switch (type) {
        case QtDebugMsg:
            lines().append(QStringLiteral("debug: ") + text);
            break;
        case QtInfoMsg:
            lines().append(QStringLiteral("info: ") + text);
            break;
        case QtWarningMsg:
            lines().append(QStringLiteral("warning: ") + text);
            break;
        case QtCriticalMsg:
            lines().append(QStringLiteral("critical: ") + text);
            break;
        case QtFatalMsg:
            qInstallMessageHandler(nullptr);
            qFatal("%s (%s:%d)", qPrintable(text), context.file, context.line);
        }
    }

    QtMessageHandler m_previous;
};

#endif
