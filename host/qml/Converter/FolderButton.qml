import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! Tells the output folder, and lets the user choose another one. */
VEXButton {
    id: root

    required property OutputChoice output

    minWidth: 0
    leftPadding: Theme.spacing
    rightPadding: Theme.spacing
    text: root.output.folder === "" ? ToolFun.tr("Same folder as the source")
                                    : root.output.folder.slice(
                                          root.output.folder.lastIndexOf("/") + 1)
    Accessible.name: ToolFun.tr("%1:").arg(ToolFun.tr("Save to")) + " " + root.text
    Accessible.description: root.output.folderMistake
    onClicked: FileChooser.chooseFolder(root.output)

    VEXHint {
        shown: root.hovered
        text: root.output.folder
    }
}
