import QtQuick 2.15
import "."

/*! The picker's background with its shadow. */
Rectangle {
    color: VexThemeMgr.curTheme.basics_gradeTone1
    border.width: 1
    border.color: ScreenStyle.frame

    Image {
        anchors.horizontalCenter: parent.horizontalCenter
        y: -8
        z: -1
        width: 794
        height: 460
        source: "qrc:/formats/image/format_back.png"
    }
}
