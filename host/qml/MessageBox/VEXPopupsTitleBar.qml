import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Controls 1.0
import Public 1.0

/*! The title of the dialog \a control, with a button to close it; the mouse can move it here. */
Item {
    id: root

    required property Item control
    property string text: ""

    width: root.control.width
    height: 40

    MouseArea {
        anchors.fill: parent
        onPressed: O_Frame.startMoving()
    }

    VEXLabel {
        anchors {
            left: parent.left
            leftMargin: 16
            right: closeButton.left
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }
        text: root.text
        font.pixelSize: 14
        font.weight: Font.DemiBold
    }

    VEXImageButton {
        id: closeButton

        anchors {
            right: parent.right
            rightMargin: 12
            verticalCenter: parent.verticalCenter
        }
        width: 20
        height: 20
        iconSource: "qrc:/window/images/close.svg"
        focusPolicy: Qt.NoFocus
        Accessible.name: ToolFun.tr("Close")
        onClicked: O_Frame.cancelClicked()
    }

    Rectangle {
        anchors.bottom: parent.bottom
        x: 1
        width: root.width - 2
        height: 1
        color: VexThemeMgr.curTheme.rule
    }
}
