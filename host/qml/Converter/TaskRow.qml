import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! One file: what it is, what becomes of it and how far that is. */
Rectangle {
    id: root

    required property PageProxy page
    required property bool canCut

    required property int index
    required property int taskId
    required property string name
    required property string source
    required property string details
    required property string codecs
    required property real seconds
    required property string thumbnail
    required property string format
    required property string formatCaption
    required property string formatIcon
    required property int taskState
    required property int percent
    required property real speed
    required property string timeLeft
    required property string error
    required property string note
    required property real start
    required property real end

    // One row of the list is a stop of the Tab key, with the controls in it.
    readonly property bool isCurrent: ListView.isCurrentItem
    readonly property bool isQueued: root.taskState === Task.Waiting
                                     || root.taskState === Task.Running

    property bool isComplete: false
    // The details are there once the file has been read.
    readonly property bool lacksThumbnail: root.isComplete && root.details !== ""
                                           && root.thumbnail === ""

    signal formatClicked(Item button)
    signal pressed()

    function activate() {
        if (!root.isQueued) {
            root.formatClicked(formatButton)
        }
    }

    function joined(texts, separator) {
        return texts.filter(Boolean).join(separator)
    }

    implicitHeight: root.canCut ? 128 : 96
    activeFocusOnTab: root.isCurrent || root.activeFocus
    radius: Theme.radius_2
    color: hover.hovered ? Theme.hover : Theme.basics_gradeTone1
    border.width: 1
    border.color: Theme.rule
    Accessible.role: Accessible.ListItem
    Accessible.name: root.joined([root.name, root.details, root.formatCaption, progress.words],
                                 ", ")
    Accessible.focusable: true
    Accessible.onPressAction: root.activate()

    // What a control in the row leaves over is not meant for the row.
    Keys.enabled: root.activeFocus
    Keys.onReturnPressed: root.activate()
    Keys.onEnterPressed: root.activate()
    Keys.onSpacePressed: root.activate()
    Keys.onDeletePressed: root.page.remove(root.taskId)

    Component.onCompleted: root.isComplete = true
    onLacksThumbnailChanged: {
        if (root.lacksThumbnail) {
            root.page.requestThumbnail(root.taskId)
        }
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        id: tap

        gesturePolicy: TapHandler.DragThreshold
        onPressedChanged: {
            if (tap.pressed) {
                root.pressed()
                root.forceActiveFocus(Qt.MouseFocusReason)
            }
        }
    }

    VEXFocusFrame {
        controlRadius: root.radius
        visible: root.activeFocus
    }

    Thumbnail {
        id: thumbnail

        x: Theme.margin
        y: Theme.margin
        source: root.thumbnail
    }

    Column {
        anchors {
            left: thumbnail.right
            leftMargin: Theme.margin
            right: formatButton.left
            rightMargin: Theme.wideMargin
            top: thumbnail.top
        }
        spacing: 2

        VEXLabel {
            width: parent.width
            height: 20
            text: root.name
            elide: Text.ElideMiddle
            font.pixelSize: Theme.mediumText
            font.weight: Font.DemiBold
        }

        VEXLabel {
            width: parent.width
            height: 18
            visible: text !== ""
            text: root.joined([root.details, root.codecs], "  ·  ")
            font.pixelSize: Theme.smallText
            color: Theme.font_color_grade4
        }

        TaskProgress {
            id: progress

            width: parent.width
            taskState: root.taskState
            percent: root.percent
            speed: root.speed
            timeLeft: root.timeLeft
            error: root.error
            note: root.note
        }
    }

    VEXFormatButton {
        id: formatButton

        anchors {
            right: actions.left
            rightMargin: Theme.margin
            verticalCenter: thumbnail.verticalCenter
        }
        width: 208
        focusPolicy: root.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
        enabled: !root.isQueued
        purpose: ToolFun.tr("Format")
        text: root.formatCaption
        iconSource: root.formatIcon
        onClicked: root.activate()
    }

    Item {
        id: actions

        anchors {
            right: parent.right
            rightMargin: Theme.margin
            verticalCenter: thumbnail.verticalCenter
        }
        width: 60
        height: 28

        TaskActions {
            anchors.right: parent.right
            page: root.page
            taskId: root.taskId
            taskState: root.taskState
            inTabOrder: root.isCurrent
        }
    }

    Loader {
        active: root.canCut
        anchors {
            left: thumbnail.left
            right: parent.right
            rightMargin: Theme.margin
            top: thumbnail.bottom
            topMargin: Theme.spacing
        }

        sourceComponent: CutBar {
            taskId: root.taskId
            seconds: root.seconds
            start: root.start
            end: root.end
            inTabOrder: root.isCurrent
            enabled: !root.isQueued && root.seconds > 0
        }
    }
}
