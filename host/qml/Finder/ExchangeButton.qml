import QtQuick 2.15
import Controls 1.0
import Converter 1.0
import VexWindow 1.0

/*! Opens the menu that brings presets from elsewhere, and takes them there. */
VEXImageButton {
    id: root

    width: 28
    height: 28
    iconSize: 18
    iconSource: "qrc:/window/images/more.svg"
    Accessible.name: ToolFun.tr("Import or export presets")
    onClicked: menu.popup(root, 0, root.height)

    StyledMenu {
        id: menu

        MenuEntry {
            text: ToolFun.tr("Import presets …")
            onTriggered: PresetExchange.chooseFiles()
        }

        MenuEntry {
            text: ToolFun.tr("Export all my presets …")
            onTriggered: PresetExchange.chooseTarget()
        }
    }
}
