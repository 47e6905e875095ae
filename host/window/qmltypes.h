#ifndef WINDOW_QMLTYPES_H
#define WINDOW_QMLTYPES_H

#include "host/window/appearance.h"
#include "host/window/dialogs.h"
#include "host/window/filechooser.h"
#include "host/window/notices.h"
#include "host/window/pageproxies.h"
#include "host/window/presetactions.h"
#include "host/window/presetexchange.h"
#include "host/window/presetfinder.h"
#include "host/window/toolfun.h"

#include <QQmlEngine>

/*!
 * \file
 * What the window's QML files import as "VexWindow 1.0". tools/lint.sh checks them against the
 * types that this file names.
 */

struct ExposedToolFun
{
    Q_GADGET
    QML_FOREIGN(ToolFun)
    QML_NAMED_ELEMENT(ToolFun)
    QML_SINGLETON
};

struct ExposedDialogs
{
    Q_GADGET
    QML_FOREIGN(Dialogs)
    QML_NAMED_ELEMENT(Dialogs)
    QML_SINGLETON
};

struct ExposedFileChooser
{
    Q_GADGET
    QML_FOREIGN(FileChooser)
    QML_NAMED_ELEMENT(FileChooser)
    QML_SINGLETON
};

struct ExposedNotices
{
    Q_GADGET
    QML_FOREIGN(Notices)
    QML_NAMED_ELEMENT(Notices)
    QML_SINGLETON
};

struct ExposedAppearance
{
    Q_GADGET
    QML_FOREIGN(Appearance)
    QML_NAMED_ELEMENT(Appearance)
    QML_SINGLETON
};

struct ExposedWindowSettings
{
    Q_GADGET
    QML_FOREIGN(WindowSettings)
    QML_NAMED_ELEMENT(Settings)
    QML_SINGLETON
};

/*! The one for both pages; the pages' own ones have the same type. */
struct ExposedOutputChoice
{
    Q_GADGET
    QML_FOREIGN(OutputChoice)
    QML_NAMED_ELEMENT(OutputChoice)
    QML_SINGLETON
};

struct ExposedConverterProxy
{
    Q_GADGET
    QML_FOREIGN(ConverterProxy)
    QML_NAMED_ELEMENT(ConverterProxy)
    QML_SINGLETON
};

struct ExposedEditorProxy
{
    Q_GADGET
    QML_FOREIGN(EditorProxy)
    QML_NAMED_ELEMENT(EditorProxy)
    QML_SINGLETON
};

struct ExposedPresetFinder
{
    Q_GADGET
    QML_FOREIGN(PresetFinder)
    QML_NAMED_ELEMENT(PresetFinder)
    QML_SINGLETON
};

struct ExposedPresetActions
{
    Q_GADGET
    QML_FOREIGN(PresetActions)
    QML_NAMED_ELEMENT(PresetActions)
    QML_SINGLETON
};

struct ExposedPresetExchange
{
    Q_GADGET
    QML_FOREIGN(PresetExchange)
    QML_NAMED_ELEMENT(PresetExchange)
    QML_SINGLETON
};

struct ExposedPage
{
    Q_GADGET
    QML_FOREIGN(Page)
    QML_NAMED_ELEMENT(PageProxy)
    QML_UNCREATABLE("is one of the two pages")
};

struct ExposedPageOutput
{
    Q_GADGET
    QML_FOREIGN(PageOutput)
    QML_ANONYMOUS
};

struct ExposedTaskLogs
{
    Q_GADGET
    QML_FOREIGN(TaskLogs)
    QML_ANONYMOUS
};

struct ExposedTaskTracks
{
    Q_GADGET
    QML_FOREIGN(TaskTracks)
    QML_NAMED_ELEMENT(TaskTracks)
    QML_UNCREATABLE("belongs to a page")
};

struct ExposedTaskList
{
    Q_GADGET
    QML_FOREIGN(TaskList)
    QML_ANONYMOUS
};

struct ExposedTask
{
    Q_GADGET
    QML_FOREIGN(Task)
    QML_NAMED_ELEMENT(Task)
    QML_UNCREATABLE("holds the states of a task")
};

struct ExposedTaskSelection
{
    Q_GADGET
    QML_FOREIGN(TaskSelection)
    QML_ANONYMOUS
};

struct ExposedOffer
{
    Q_GADGET
    QML_FOREIGN(Offer)
    QML_ANONYMOUS
};

struct ExposedDialogFrame
{
    Q_GADGET
    QML_FOREIGN(DialogFrame)
    QML_NAMED_ELEMENT(DialogFrame)
    QML_UNCREATABLE("is made for each dialog")
};

/*! The singletons are children of the object that is the QML engine's parent. */
void registerQmlTypes();

#endif
