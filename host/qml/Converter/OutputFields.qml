import QtQuick 2.15
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! How results are called, and what happens to names in use. */
Column {
    id: root

    required property OutputChoice output
    /*! Whose first file is the example. */
    required property PageProxy page

    readonly property alias nameField: names.field
    readonly property string mistake: root.output.mistakeIn(names.text)

    component Line: VEXLabel {
        width: root.width
        elide: Text.ElideNone
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        font.pixelSize: Theme.smallText
        color: Theme.font_color_grade4
    }

    /*! Shows what holds, whatever was typed before. */
    function renew() {
        names.text = root.output.nameTemplate
    }

    spacing: 4

    Line {
        text: ToolFun.tr("Names")
    }

    VEXLineField {
        id: names

        width: root.width
        wrong: root.mistake !== ""
        field.placeholderText: "{name}"
        purpose: ToolFun.tr("Names")
        remark: says.text

        Connections {
            target: names.field

            function onTextEdited() { root.output.nameTemplate = names.text }
        }
    }

    Line {
        id: says

        color: names.wrong ? Theme.danger : Theme.font_color_grade4
        text: names.wrong || !root.visible ? root.mistake
                                           : ToolFun.tr("For example %1").arg(
                                                 root.page.output.preview(names.text))
    }

    Line {
        visible: !names.wrong
        text: ToolFun.tr("These are replaced: %1").arg(root.output.fields)
    }

    Line {
        topPadding: Theme.spacing - root.spacing
        text: ToolFun.tr("If a name is in use")
    }

    VEXComboBox {
        id: inUse

        function transText(text) {
            return ToolFun.tr(text)
        }

        width: root.width
        // In the order of Settings.IfInUse.
        model: ["Add a number", "Ask", "Skip the file", "Replace the file"]
        currentIndex: root.output.ifInUse
        Accessible.name: ToolFun.tr("If a name is in use")
        onActivated: root.output.ifInUse = inUse.currentIndex
    }

    VEXCheckBox {
        id: tree

        width: root.width
        enabled: root.output.folder !== ""
        checked: root.output.keepsTree
        text: ToolFun.tr("Make the subfolders of an added folder, too")
        onToggled: root.output.keepsTree = tree.checked
    }
}
