import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! Invites to drop files, where there are none yet. */
Item {
    id: root

    required property bool isDropOver

    signal addClicked()

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(560, parent.width - 2 * Theme.wideMargin)
        height: Math.min(300, parent.height - 2 * Theme.wideMargin)
        radius: Theme.radius_3
        color: root.isDropOver ? Theme.accentPale
                               : Theme.basics_gradeTone1

        VEXDashedFrame {
            anchors.fill: parent
            radius: parent.radius
            color: root.isDropOver ? Theme.font_color_grade3
                                   : Theme.frame
        }

        Column {
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.wideMargin
            spacing: 12

            VEXIcon {
                anchors.horizontalCenter: parent.horizontalCenter
                size: 72
                source: "qrc:/window/images/drop.svg"
            }

            VEXLabel {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: ToolFun.tr("Drop video or audio files here")
                font.pixelSize: Theme.largeText
                font.weight: Font.DemiBold
            }

            VEXLabel {
                width: parent.width
                bottomPadding: 8
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                text: ToolFun.tr("Then choose a format and press Convert All")
                color: Theme.font_color_grade4
            }

            VEXButton {
                anchors.horizontalCenter: parent.horizontalCenter
                primary: true
                text: ToolFun.tr("Add files")
                onClicked: root.addClicked()
            }
        }
    }
}
