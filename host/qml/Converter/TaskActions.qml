import QtQuick 2.15
import Controls 1.0
import VexWindow 1.0

/*! The buttons of a task: those that make sense in its state. */
Row {
    id: root

    required property PageProxy page
    required property int taskId
    required property int taskState
    required property bool inTabOrder

    readonly property bool isQueued: root.taskState === Task.Waiting
                                     || root.taskState === Task.Running
    readonly property bool canRetry: root.taskState === Task.Failed
                                     || root.taskState === Task.Cancelled
                                     || root.taskState === Task.Interrupted

    component Action: VEXImageButton {
        required property bool inTabOrder

        width: 28
        height: 28
        iconSize: 18
        focusPolicy: inTabOrder || activeFocus ? Qt.TabFocus : Qt.NoFocus
    }

    spacing: 4

    Action {
        visible: root.taskState === Task.Converted
        inTabOrder: root.inTabOrder
        iconSource: "qrc:/window/images/play.svg"
        Accessible.name: ToolFun.tr("Play")
        onClicked: root.page.play(root.taskId)
    }

    Action {
        visible: root.taskState === Task.Converted
        inTabOrder: root.inTabOrder
        iconSource: "qrc:/window/images/folder.svg"
        Accessible.name: ToolFun.tr("Show in folder")
        onClicked: root.page.showInFolder(root.taskId)
    }

    Action {
        visible: root.taskState === Task.Ready
        inTabOrder: root.inTabOrder
        iconSource: "qrc:/window/images/start.svg"
        Accessible.name: ToolFun.tr("Convert")
        onClicked: root.page.convert(root.taskId)
    }

    Action {
        visible: root.taskState === Task.Ready && root.page === ConverterProxy
        inTabOrder: root.inTabOrder
        iconSource: "qrc:/window/images/edit.svg"
        Accessible.name: ToolFun.tr("Cut in the editor")
        onClicked: ConverterProxy.openInEditor(root.taskId)
    }

    Action {
        visible: root.canRetry
        inTabOrder: root.inTabOrder
        iconSource: "qrc:/window/images/retry.svg"
        Accessible.name: ToolFun.tr("Try again")
        onClicked: root.page.convert(root.taskId)
    }

    Action {
        visible: root.taskState === Task.Failed
        inTabOrder: root.inTabOrder
        iconSource: "qrc:/window/images/log.svg"
        Accessible.name: ToolFun.tr("Show log")
        onClicked: root.page.logs.show(root.taskId)
    }

    Action {
        visible: root.isQueued
        inTabOrder: root.inTabOrder
        iconSource: "qrc:/window/images/stop.svg"
        Accessible.name: ToolFun.tr("Stop")
        onClicked: root.page.cancel(root.taskId)
    }

    Action {
        inTabOrder: root.inTabOrder
        iconSource: "qrc:/window/images/remove.svg"
        Accessible.name: ToolFun.tr("Remove from the list")
        onClicked: root.page.remove(root.taskId)
    }
}
