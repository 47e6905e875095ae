import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! What the user ought to know, until it is dismissed. */
Rectangle {
    id: root

    required property string text

    signal dismissed()

    implicitHeight: root.text === "" ? 0 : Math.max(44, words.implicitHeight + 24)
    visible: root.text !== ""
    color: Theme.noticePale
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.text

    VEXLabel {
        id: words

        anchors {
            left: parent.left
            leftMargin: Theme.wideMargin
            right: closeButton.left
            rightMargin: Theme.margin
            verticalCenter: parent.verticalCenter
        }
        text: root.text
        elide: Text.ElideNone
        wrapMode: Text.Wrap
        color: Theme.noticeText
    }

    VEXImageButton {
        id: closeButton

        anchors {
            right: parent.right
            rightMargin: Theme.wideMargin
            verticalCenter: parent.verticalCenter
        }
        width: 20
        height: 20
        iconSource: "qrc:/window/images/close.svg"
        Accessible.name: ToolFun.tr("Close")
        onClicked: root.dismissed()
    }
}
