import QtQuick 2.15
import Controls 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! Gives a file that can't be converted as chosen the nearest format that it can have. */
VEXButton {
    id: root

    required property PageProxy page
    required property int taskId
    required property var outlook
    required property bool inTabOrder

    implicitHeight: 28
    leftPadding: Theme.spacing
    rightPadding: Theme.spacing
    visible: root.outlook !== null && root.outlook.nearest !== ""
    focusPolicy: root.inTabOrder || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    font.pixelSize: Theme.smallText
    text: root.visible ? ToolFun.tr("Use %1").arg(root.outlook.nearestCaption) : ""
    onClicked: root.page.useFormat(root.taskId, root.outlook.nearest)
}
