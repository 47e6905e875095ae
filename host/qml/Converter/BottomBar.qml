import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! What holds for the whole page: its format, where the results go, and the start of it all. */
Rectangle {
    id: root

    required property PageProxy page
    required property string formatLabel
    required property int formatLabelWidth

    property alias formatButton: formatButton

    signal formatClicked()

    function folderName(path) {
        return path === "" ? ToolFun.tr("Same folder as the source")
                           : path.slice(path.lastIndexOf("/") + 1)
    }

    implicitHeight: 72
    color: Theme.basics_gradeTone1

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.rule
    }

    Row {
        id: format

        anchors {
            left: parent.left
            leftMargin: Theme.wideMargin
            verticalCenter: parent.verticalCenter
        }

        VEXLabel {
            width: root.formatLabelWidth
            height: parent.height
            text: root.formatLabel + ":"
            font.pixelSize: Theme.smallText
            color: Theme.font_color_grade4
        }

        VEXFormatButton {
            id: formatButton

            width: 220
            purpose: root.formatLabel
            text: root.page.globalCaption
            iconSource: root.page.globalIcon
            onClicked: root.formatClicked()
        }
    }

    VEXLabel {
        id: folderLabel

        anchors {
            left: format.right
            leftMargin: Theme.wideMargin
            verticalCenter: parent.verticalCenter
        }
        text: ToolFun.tr("Save to") + ":"
        font.pixelSize: Theme.smallText
        color: Theme.font_color_grade4
    }

    VEXButton {
        id: folderButton

        anchors {
            left: folderLabel.right
            leftMargin: 12
            right: besideButton.visible ? besideButton.left : convertButton.left
            rightMargin: besideButton.visible ? Theme.spacing : Theme.wideMargin
            verticalCenter: parent.verticalCenter
        }
        text: root.folderName(root.page.folder)
        Accessible.name: folderLabel.text + " " + folderButton.text
        onClicked: FileChooser.chooseFolder(root.page)

        VEXHint {
            shown: folderButton.hovered
            text: root.page.folder
        }
    }

    VEXImageButton {
        id: besideButton

        anchors {
            right: convertButton.left
            rightMargin: Theme.wideMargin
            verticalCenter: parent.verticalCenter
        }
        width: 24
        height: 24
        visible: root.page.folder !== ""
        iconSource: "qrc:/window/images/close.svg"
        Accessible.name: ToolFun.tr("Same folder as the source")
        onClicked: root.page.folder = ""
    }

    VEXButton {
        id: convertButton

        anchors {
            right: parent.right
            rightMargin: Theme.wideMargin
            verticalCenter: parent.verticalCenter
        }
        minWidth: 136
        primary: !root.page.isBusy
        enabled: root.page.isBusy || root.page.canConvert
        text: root.page.isBusy ? ToolFun.tr("Stop All") : ToolFun.tr("Convert All")
        onClicked: root.page.isBusy ? root.page.cancelAll() : root.page.convertAll()
    }
}
