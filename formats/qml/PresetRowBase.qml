import QtQuick 2.15
import QtQuick.Controls 2.5
import "."

/*! What the rows of both preset lists have in common: icon, three columns, frame and hover. */
Rectangle {
    id: root

    required property var model
    required property int index
    required property Popup page
    required property string title
    required property string quality
    required property string encoder
    required property url icon
    required property int titleWidth
    required property int valueWidth
    required property int columnSpacing
    required property color hoverColor
    required property bool buttonHovered

    readonly property string presetId: root.model.id
    readonly property bool selected: root.page.curId === root.presetId
    readonly property bool isVideo: root.model.videoResolutions !== undefined
                                    && root.model.videoResolutions.length > 0

    function choose() {
        root.page.choose(root.presetId)
    }

    function shownTitle() {
        return ToolFun.tr(root.model.title === "Same as source" ? "Keep Orignal"
                                                                : root.model.title)
    }

    function shownSetting(value, unit) {
        return value === "0" || value === 0 ? ToolFun.tr("Smart Fit") : value + unit
    }

    function shownEncoders() {
        const video = root.model.videoEncoder
        const audio = root.model.audioEncoder
        if (!root.isVideo || (video === "0" && audio === "0")) {
            return root.shownSetting(audio, "")
        }
        return root.shownSetting(video, "") + ", " + root.shownSetting(audio, "")
    }

    color: mouse.containsMouse || root.buttonHovered ? root.hoverColor
                                                     : VexThemeMgr.curTheme.basics_gradeTone1
    border.width: root.selected ? 1 : 0
    border.color: VexThemeMgr.curTheme.font_color_grade3
    Accessible.role: Accessible.ListItem
    Accessible.name: [root.title, root.quality, root.encoder].join(", ")
    Accessible.selectable: true
    Accessible.selected: root.selected
    Accessible.onPressAction: root.choose()

    component ColumnText: Text {
        anchors.verticalCenter: parent.verticalCenter
        textFormat: Text.PlainText
        elide: Text.ElideMiddle
        color: ScreenStyle.text
        font.pixelSize: ScreenStyle.smallText
    }

    MouseArea {
        id: mouse

        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.choose()
    }

    Item {
        id: iconBox

        anchors.verticalCenter: parent.verticalCenter
        x: 8
        width: 40
        height: 40

        Image {
            anchors.centerIn: parent
            width: ScreenStyle.icon
            height: ScreenStyle.icon
            source: root.icon
            sourceSize: Qt.size(ScreenStyle.icon, ScreenStyle.icon)
        }
    }

    ColumnText {
        id: titleColumn

        anchors {
            left: iconBox.right
            leftMargin: 4
        }
        width: root.titleWidth
        text: root.title
    }

    ColumnText {
        id: qualityColumn

        anchors {
            left: titleColumn.right
            leftMargin: root.columnSpacing
        }
        width: root.valueWidth
        text: root.quality
    }

    ColumnText {
        anchors {
            left: qualityColumn.right
            leftMargin: root.columnSpacing
        }
        width: root.valueWidth
        text: root.encoder
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        visible: !root.selected
        color: ScreenStyle.rule
    }
}
