import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! How a page's results are called, and what happens to names in use. */
T.Popup {
    id: root

    required property PageProxy page

    readonly property string mistake: root.page.output.mistakeIn(names.text)

    component Caption: VEXLabel {
        width: content.captionWidth
        height: Theme.smallControlHeight
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        font.pixelSize: Theme.smallText
        color: Theme.font_color_grade4
    }

    width: 480
    height: content.implicitHeight + 2 * root.padding
    padding: Theme.margin
    margins: Theme.spacing
    focus: true
    closePolicy: T.Popup.CloseOnPressOutside | T.Popup.CloseOnEscape
    onAboutToShow: names.text = root.page.output.nameTemplate
    onOpened: names.field.forceActiveFocus(Qt.PopupFocusReason)

    background: Rectangle {
        radius: Theme.radius_2
        color: Theme.basics_gradeTone1
        border.width: 1
        border.color: Theme.frame
    }

    Column {
        id: content

        readonly property int captionWidth: 130
        readonly property int fieldWidth: width - captionWidth - Theme.spacing

        width: root.availableWidth
        spacing: Theme.spacing
        Accessible.role: Accessible.Dialog
        Accessible.name: ToolFun.tr("Names of the results")

        Row {
            spacing: Theme.spacing

            Caption {
                text: ToolFun.tr("Names")
            }

            Column {
                width: content.fieldWidth
                spacing: 4

                VEXLineField {
                    id: names

                    width: parent.width
                    wrong: root.mistake !== ""
                    field.placeholderText: "{name}"
                    purpose: ToolFun.tr("Names")
                    remark: says.text
                    onTextChanged: root.page.output.nameTemplate = names.text
                }

                VEXLabel {
                    id: says

                    width: parent.width
                    elide: Text.ElideNone
                    wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                    font.pixelSize: Theme.smallText
                    color: names.wrong ? Theme.danger : Theme.font_color_grade4
                    text: names.wrong || !root.visible ? root.mistake
                                                       : ToolFun.tr("For example %1").arg(
                                                             root.page.output.preview(names.text))
                }

                VEXLabel {
                    width: parent.width
                    visible: !names.wrong
                    elide: Text.ElideNone
                    wrapMode: Text.WordWrap
                    font.pixelSize: Theme.smallText
                    color: Theme.font_color_grade4
                    text: ToolFun.tr("These are replaced: %1").arg(root.page.output.fields)
                }
            }
        }

        Row {
            spacing: Theme.spacing

            Caption {
                text: ToolFun.tr("If a name is in use")
            }

            VEXComboBox {
                id: inUse

                function transText(text) {
                    return ToolFun.tr(text)
                }

                width: content.fieldWidth
                // In the order of Settings.IfInUse.
                model: ["Add a number", "Ask", "Skip the file", "Replace the file"]
                currentIndex: root.page.output.ifInUse
                Accessible.name: ToolFun.tr("If a name is in use")
                onActivated: root.page.output.ifInUse = inUse.currentIndex
            }
        }

        VEXCheckBox {
            id: tree

            width: parent.width
            enabled: root.page.folder !== ""
            checked: root.page.output.keepsTree
            text: ToolFun.tr("Make the subfolders of an added folder, too")
            onToggled: root.page.output.keepsTree = tree.checked
        }
    }
}
