import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! Where a task stands: in words, and as a bar while it is at work. */
Item {
    id: root

    required property int taskState
    required property int percent
    /*! How far it is, in words, while it is running. */
    required property string running
    required property string error
    required property string note
    required property string result
    /*! What the conversion will give; null where that isn't known or no longer of interest. */
    required property var outlook
    /*! Whether what the format leaves out is told here, not elsewhere. */
    required property bool tellsLosses

    readonly property string problem: root.outlook === null ? "" : root.outlook.problem
    readonly property string losses: root.outlook !== null && root.tellsLosses
                                     ? root.outlook.losses : ""
    readonly property bool isBad: root.taskState === Task.Failed || root.problem !== ""
    readonly property bool isRunning: root.taskState === Task.Running
    readonly property string words: {
        switch (root.taskState) {
        case Task.Reading:
            return ToolFun.tr("Reading …")
        case Task.Ready:
            return root.problem || root.expected()
        case Task.Waiting:
            return ToolFun.joined([ToolFun.tr("Waiting"), root.problem || root.expected()])
        case Task.Converted:
            return ToolFun.joined([root.result || ToolFun.tr("Converted"), root.note])
        case Task.Failed:
            return root.error
        case Task.Cancelled:
            return ToolFun.joined([ToolFun.tr("Stopped"), root.problem])
        case Task.Interrupted:
            return ToolFun.joined([ToolFun.tr("Interrupted"), root.problem])
        case Task.Running:
            return root.running
        }
        return ""
    }

    function expected() {
        if (root.outlook === null) {
            return ""
        }
        const name = root.outlook.name === "" ? "" : "→ " + root.outlook.name
        return ToolFun.joined([name, root.outlook.size, root.losses])
    }

    implicitHeight: Math.max(20, wordsLabel.implicitHeight)

    VEXProgressBar {
        id: bar

        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(220, parent.width * 0.45)
        visible: root.isRunning
        value: Math.max(0, root.percent) / 100
        indeterminate: root.isRunning && root.percent < 0
        Accessible.name: root.words
    }

    VEXIcon {
        id: sign

        anchors.verticalCenter: parent.verticalCenter
        visible: root.taskState === Task.Converted || root.isBad
        size: Theme.smallIcon
        source: root.taskState === Task.Converted ? "qrc:/window/images/done.svg"
                                                  : "qrc:/window/images/failed.svg"
    }

    VEXLabel {
        id: wordsLabel

        anchors {
            left: root.isRunning ? bar.right : sign.visible ? sign.right : parent.left
            leftMargin: root.isRunning ? 12 : sign.visible ? 6 : 0
            right: parent.right
            verticalCenter: parent.verticalCenter
        }
        wrapMode: Text.Wrap
        maximumLineCount: root.isBad || root.note !== "" || root.losses !== "" ? 2 : 1
        text: root.words
        font.pixelSize: Theme.smallText
        color: root.isBad ? Theme.danger
                          : root.taskState === Task.Converted ? Theme.success
                                                              : Theme.font_color_grade4

        HoverHandler {
            id: hover
        }

        VEXHint {
            shown: hover.hovered && wordsLabel.truncated
            text: root.words
        }
    }
}
