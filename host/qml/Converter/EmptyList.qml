import QtQuick 2.15
import Controls 1.0
import Public 1.0

/*! Invites to drop files, where there are none yet. */
Item {
    id: root

    required property bool isDropOver

    signal addClicked()

    Rectangle {
        anchors.centerIn: parent
        width: Math.min(560, parent.width - 48)
        height: Math.min(300, parent.height - 48)
        radius: 12
        color: root.isDropOver ? VexThemeMgr.curTheme.accentPale
                               : VexThemeMgr.curTheme.basics_gradeTone1

        VEXDashedFrame {
            anchors.fill: parent
            radius: parent.radius
            color: root.isDropOver ? VexThemeMgr.curTheme.font_color_grade3
                                   : VexThemeMgr.curTheme.frame
        }

        Column {
            anchors.centerIn: parent
            width: parent.width - 48
            spacing: 12

            VEXIcon {
                anchors.horizontalCenter: parent.horizontalCenter
                size: 72
                source: "qrc:/window/images/drop.svg"
            }

            VEXLabel {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: ToolFun.tr("Drop videos or songs here")
                font.pixelSize: 18
                font.weight: Font.DemiBold
            }

            VEXLabel {
                width: parent.width
                bottomPadding: 8
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                text: ToolFun.tr("Then choose a format and press Convert All")
                color: VexThemeMgr.curTheme.font_color_grade4
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
