import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! What has just happened, and a button for what the user may want to do about it. */
Rectangle {
    id: root

    required property PageProxy page

    implicitWidth: Math.min(parent.width - 2 * Theme.wideMargin,
                            words.implicitWidth + actionButton.width + closeButton.width
                            + 2 * Theme.margin + 2 * 12)
    implicitHeight: 44
    visible: root.page.offer.text !== ""
    radius: Theme.radius_2
    color: Theme.basics_gradeTone1
    border.width: 1
    border.color: Theme.font_color_grade3
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.page.offer.text

    VEXLabel {
        id: words

        anchors {
            left: parent.left
            leftMargin: Theme.margin
            right: actionButton.left
            rightMargin: 12
            verticalCenter: parent.verticalCenter
        }
        text: root.page.offer.text
        elide: Text.ElideMiddle
        Accessible.ignored: true
    }

    VEXButton {
        id: actionButton

        anchors {
            right: closeButton.left
            rightMargin: 12
            verticalCenter: parent.verticalCenter
        }
        implicitHeight: Theme.smallControlHeight
        visible: root.page.offer.action !== ""
        text: root.page.offer.action
        onClicked: root.page.offer.take()
    }

    VEXImageButton {
        id: closeButton

        anchors {
            right: parent.right
            rightMargin: Theme.margin
            verticalCenter: parent.verticalCenter
        }
        width: 20
        height: 20
        iconSource: "qrc:/window/images/close.svg"
        Accessible.name: ToolFun.tr("Close")
        onClicked: root.page.offer.dismiss()
    }
}
