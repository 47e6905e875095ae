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
    required property bool hasOwnFormat
    required property int taskState
    required property int percent
    required property string running
    required property string error
    required property string result
    required property string note
    required property real start
    required property real end
    required property string tracks
    required property bool isOpen
    required property bool isSelected

    // One row of the list is a stop of the Tab key, with the controls in it.
    readonly property bool isCurrent: ListView.isCurrentItem
    readonly property bool isRunning: root.taskState === Task.Running
    // Its arguments are all that it depends on.
    readonly property var outlook:
        root.taskState === Task.Reading || root.isRunning || root.taskState === Task.Converted
        ? null : root.page.outlook(root.taskId, root.format, root.start, root.end,
                                   root.tracks, root.page.outlookVersion)

    property bool isComplete: false
    readonly property bool hasFacts: root.details !== ""
    readonly property bool lacksThumbnail: root.isComplete && root.hasFacts
                                           && root.thumbnail === ""

    signal formatClicked(Item button)
    signal pressed(int modifiers)
    signal released(int modifiers)
    signal menuWanted(point place)
    signal removalWanted()
    signal dragged(real y)
    signal dropped()

    function activate() {
        if (!root.isRunning) {
            root.formatClicked(formatButton)
        }
    }

    /*! Shows the file's tracks, or hides them. */
    function setOpen(isOpen) {
        if (!isOpen && details.activeFocus) {
            root.forceActiveFocus(Qt.OtherFocusReason)
        }
        if (root.hasFacts) {
            root.page.tracks.setOpen(root.taskId, isOpen)
        }
    }

    /*! Opens the menu where the keyboard is, as the pointer may be anywhere. */
    function openMenu() {
        root.menuWanted(Qt.point(thumbnail.x + thumbnail.width / 2,
                                 thumbnail.y + thumbnail.height / 2))
    }

    function spoken(texts) {
        return texts.filter(Boolean).join(", ")
    }

    readonly property int closedHeight: root.canCut ? 128 : 96

    implicitHeight: root.closedHeight + (details.active ? details.height + Theme.margin : 0)
    activeFocusOnTab: root.isCurrent || root.activeFocus
    radius: Theme.radius_2
    color: root.isSelected ? Theme.accentPale
                           : hover.hovered ? Theme.hover : Theme.basics_gradeTone1
    border.width: 1
    border.color: Theme.rule
    Accessible.role: Accessible.ListItem
    Accessible.name: root.spoken([root.name, root.details, root.formatCaption, progress.words])
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: root.isSelected
    Accessible.onPressAction: root.activate()

    // What a control in the row leaves over is not meant for the row.
    Keys.enabled: root.activeFocus
    Keys.onReturnPressed: root.activate()
    Keys.onEnterPressed: root.activate()
    Keys.onSpacePressed: root.setOpen(!root.isOpen)
    Keys.onRightPressed: root.setOpen(true)
    Keys.onLeftPressed: root.setOpen(false)
    Keys.onDeletePressed: root.removalWanted()
    Keys.onMenuPressed: root.openMenu()

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
                root.pressed(tap.point.modifiers)
                root.forceActiveFocus(Qt.MouseFocusReason)
            }
        }
        onTapped: root.released(tap.point.modifiers)
    }

    TapHandler {
        id: menuTap

        acceptedButtons: Qt.RightButton
        gesturePolicy: TapHandler.DragThreshold
        onTapped: {
            root.forceActiveFocus(Qt.MouseFocusReason)
            root.menuWanted(menuTap.point.position)
        }
    }

    VEXFocusFrame {
        controlRadius: root.radius
        visible: root.activeFocus
    }

    TaskGrip {
        height: parent.height
        opacity: hover.hovered ? 1 : 0
        onDragged: function (place) { root.dragged(root.y + place.y) }
        onDropped: root.dropped()
    }

    Thumbnail {
        id: thumbnail

        x: Theme.margin
        y: Theme.margin
        source: root.thumbnail
    }

    VEXImageButton {
        id: opener

        anchors {
            left: thumbnail.right
            leftMargin: 6
            top: thumbnail.top
            topMargin: 2
        }
        enabled: root.hasFacts
        focusPolicy: root.isCurrent || activeFocus ? Qt.TabFocus : Qt.NoFocus
        rotation: root.isOpen ? 0 : -90
        iconSource: "qrc:/window/images/arrow_down.svg"
        Accessible.name: root.isOpen ? ToolFun.tr("Hide tracks") : ToolFun.tr("Show tracks")
        onClicked: root.setOpen(!root.isOpen)
    }

    Column {
        anchors {
            left: opener.right
            leftMargin: 6
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
            text: ToolFun.joined([root.details, root.codecs])
            font.pixelSize: Theme.smallText
            color: Theme.font_color_grade4
        }

        TaskProgress {
            id: progress

            width: parent.width
            taskState: root.taskState
            percent: root.percent
            running: root.running
            error: root.error
            result: root.result
            note: root.note
            outlook: root.outlook
            tellsLosses: !root.isOpen
        }
    }

    VEXFormatButton {
        id: formatButton

        anchors {
            right: actions.left
            rightMargin: Theme.margin
            verticalCenter: thumbnail.verticalCenter
            verticalCenterOffset: root.outlook !== null && root.outlook.nearest !== "" ? -16 : 0
        }
        width: root.width < 900 ? 208 : 240
        focusPolicy: root.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
        enabled: !root.isRunning
        purpose: ToolFun.tr("Format")
        text: root.formatCaption
        iconSource: root.formatIcon
        onClicked: root.activate()
    }

    NearestFormat {
        anchors {
            left: formatButton.left
            right: formatButton.right
            top: formatButton.bottom
            topMargin: 4
        }
        page: root.page
        taskId: root.taskId
        outlook: root.outlook
        inTabOrder: root.isCurrent
    }

    Item {
        id: actions

        anchors {
            right: parent.right
            rightMargin: Theme.margin
            verticalCenter: thumbnail.verticalCenter
        }
        width: 92
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
            enabled: !root.isRunning && root.seconds > 0
        }
    }

    Loader {
        id: details

        active: root.isOpen && root.hasFacts
        anchors {
            left: thumbnail.right
            leftMargin: 28
            right: parent.right
            rightMargin: Theme.margin
            top: parent.top
            topMargin: root.closedHeight
        }

        sourceComponent: TaskDetails {
            tracks: root.page.tracks
            taskId: root.taskId
            details: root.details
            format: root.format
            chosen: root.tracks
            losses: root.outlook === null ? "" : root.outlook.losses
            inTabOrder: root.isCurrent
            enabled: !root.isRunning
        }
    }
}
