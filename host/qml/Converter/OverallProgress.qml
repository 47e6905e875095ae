import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! How far the conversions of a page are as a whole. */
Row {
    id: root

    required property PageProxy page

    spacing: 12
    visible: root.page.overall !== ""

    VEXProgressBar {
        anchors.verticalCenter: parent.verticalCenter
        width: 220
        value: root.page.overallPercent / 100
        Accessible.name: root.page.overall
    }

    VEXLabel {
        anchors.verticalCenter: parent.verticalCenter
        text: root.page.overall
        font.pixelSize: Theme.smallText
        font.weight: Font.DemiBold
    }
}
