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
    signal finderClicked()

    readonly property bool isNarrow: root.width < 960

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
            text: ToolFun.tr("%1:").arg(root.formatLabel)
            font.pixelSize: Theme.smallText
            color: Theme.font_color_grade4
        }

        VEXFormatButton {
            id: formatButton

            width: root.isNarrow ? 190 : 240
            purpose: root.formatLabel
            text: root.page.globalCaption
            iconSource: root.page.globalIcon
            onClicked: root.formatClicked()
        }

        VEXImageButton {
            width: Theme.controlHeight
            height: Theme.controlHeight
            iconSize: 20
            iconSource: "qrc:/window/images/search.svg"
            Accessible.name: ToolFun.tr("Find a preset (Ctrl+F)")
            onClicked: root.finderClicked()
        }
    }

    VEXLabel {
        id: folderLabel

        anchors {
            left: format.right
            leftMargin: Theme.wideMargin
            verticalCenter: parent.verticalCenter
        }
        visible: !root.isNarrow
        text: ToolFun.tr("%1:").arg(ToolFun.tr("Save to"))
        font.pixelSize: Theme.smallText
        color: Theme.font_color_grade4
    }

    FolderButton {
        id: folderButton

        anchors {
            left: root.isNarrow ? format.right : folderLabel.right
            leftMargin: root.isNarrow ? Theme.wideMargin : 12
            verticalCenter: parent.verticalCenter
        }
        width: Math.min(320, root.width - x - buttons.width - convertButton.width
                             - Theme.spacing - 2 * Theme.wideMargin)
        output: root.page.output
    }

    Row {
        id: buttons

        anchors {
            left: folderButton.right
            leftMargin: Theme.spacing
            verticalCenter: parent.verticalCenter
        }
        spacing: Theme.spacing

        VEXImageButton {
            width: 24
            height: 24
            visible: root.page.output.folder !== ""
            iconSource: "qrc:/window/images/close.svg"
            Accessible.name: ToolFun.tr("Same folder as the source")
            onClicked: root.page.output.folder = ""
        }

        VEXImageButton {
            id: namesButton

            width: 24
            height: 24
            iconSize: 20
            iconSource: "qrc:/window/images/names.svg"
            Accessible.name: ToolFun.tr("Names of the results")
            onClicked: panel.open()

            OutputPanel {
                id: panel

                objectName: "outputPanel"
                x: (namesButton.width - width) / 2
                y: -height - Theme.margin
                page: root.page
            }
        }
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
