#include "tests/formats/qml/screenbench.h"

#include <QQmlContext>
#include <QtQuickTest>

/*! Prepares the engine of each test file. */
class ScreenTests : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(QStringLiteral(SCREEN_TEST_MODULES));
#if QT_VERSION_MAJOR == 6
        engine->addImportPath(QStringLiteral(SCREEN_TEST_QT6_MODULES));
#endif
        engine->rootContext()->setContextProperty(QStringLiteral("bench"), new ScreenBench(engine));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(screens, ScreenTests)

#include "screentests.moc"
