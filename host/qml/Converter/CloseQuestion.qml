import QtQuick 2.15
import QtQuick.Controls 2.5
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! Asks what is meant when the window is closed while it converts. */
Popup {
    id: root

    signal confirmed()

    parent: Overlay.overlay
    anchors.centerIn: Overlay.overlay
    width: 440
    padding: Theme.wideMargin
    modal: true
    focus: true
    closePolicy: Popup.CloseOnEscape
    onOpened: keepButton.forceActiveFocus(Qt.TabFocusReason)

    background: Rectangle {
        radius: Theme.radius_2
        color: Theme.basics_gradeTone1
        border.width: 1
        border.color: Theme.frame
    }

    Column {
        width: root.availableWidth
        spacing: Theme.margin
        Accessible.role: Accessible.AlertMessage
        Accessible.name: title.text + " " + words.text

        VEXLabel {
            id: title

            width: parent.width
            wrapMode: Text.WordWrap
            text: ToolFun.tr("Stop converting?")
            font.pixelSize: Theme.largeText
            font.weight: Font.DemiBold
        }

        VEXLabel {
            id: words

            width: parent.width
            wrapMode: Text.WordWrap
            text: ToolFun.tr("The list is kept: you can convert the rest the next time.")
        }

        Row {
            anchors.right: parent.right
            spacing: 12

            VEXButton {
                text: ToolFun.tr("Stop and close")
                onClicked: root.confirmed()
            }

            VEXButton {
                id: keepButton

                primary: true
                text: ToolFun.tr("Keep converting")
                onClicked: root.close()
            }
        }
    }
}
