#include "host/window/qmltypes.h"

#include <QMetaClassInfo>

namespace {

constexpr const char *module = "VexWindow";

template <typename Exposed>
const char *nameOf()
{
    const QMetaObject &exposed = Exposed::staticMetaObject;
    return exposed.classInfo(exposed.indexOfClassInfo("QML.Element")).value();
}

template <typename Exposed>
void registerSingleton()
{
    using Object = typename QQmlPrivate::QmlResolved<Exposed>::Type;
    qmlRegisterSingletonType<Object>(
        module, 1, 0, nameOf<Exposed>(), [](QQmlEngine *engine, QJSEngine *) -> QObject * {
            auto *object =
                engine->parent()->findChild<Object *>(QString(), Qt::FindDirectChildrenOnly);
            QQmlEngine::setObjectOwnership(object, QQmlEngine::CppOwnership);
            return object;
        });
}

int registerTypes()
{
    qRegisterMetaType<Outlook>();
    qRegisterMetaType<TrackLine>();
    // Otherwise QML can't call what takes one: Task is no QObject.
    qRegisterMetaType<Task::SortKey>("Task::SortKey");
    registerSingleton<ExposedToolFun>();
    registerSingleton<ExposedDialogs>();
    registerSingleton<ExposedFileChooser>();
    registerSingleton<ExposedNotices>();
    registerSingleton<ExposedAppearance>();
    registerSingleton<ExposedWindowSettings>();
    registerSingleton<ExposedOutputChoice>();
    registerSingleton<ExposedConverterProxy>();
    registerSingleton<ExposedEditorProxy>();
    registerSingleton<ExposedPresetFinder>();
    registerSingleton<ExposedPresetActions>();
    registerSingleton<ExposedPresetExchange>();
    qmlRegisterTypesAndRevisions<ExposedPage, ExposedPageOutput, ExposedTaskLogs, ExposedTaskTracks,
                                 ExposedTaskList, ExposedTaskSelection, ExposedOffer,
                                 ExposedDialogFrame>(module, 1);
    return qmlRegisterUncreatableMetaObject(Task::staticMetaObject, module, 1, 0,
                                            nameOf<ExposedTask>(),
                                            QStringLiteral("holds the states of a task"));
}

} // namespace

void registerQmlTypes()
{
    [[maybe_unused]] static const int registered = registerTypes();
}
