import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! The title of the dialog \a control, with a button to close it; the mouse can move it here. */
Item {
    id: root

    required property VEXContent control
    property string text: ""

    width: root.control.width
    height: 40

    MouseArea {
        anchors.fill: parent
        onPressed: root.control.frame.startMoving()
    }

    VEXLabel {
        anchors {
            left: parent.left
            leftMargin: Theme.margin
            right: closeButton.left
            rightMargin: Theme.spacing
            verticalCenter: parent.verticalCenter
        }
        text: root.text
        font.pixelSize: Theme.mediumText
        font.weight: Font.DemiBold
        color: root.control.theme.font_color_grade1
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
        onClicked: root.control.frame.cancelClicked()
    }

    Rectangle {
        anchors.bottom: parent.bottom
        x: 1
        width: root.width - 2
        height: 1
        color: root.control.theme.rule
    }
}
