import QtQuick 2.15
import Controls 1.0
import MessageBox 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! Shows how the preset \a info["id"] differs from its base, and takes the base's values again. */
VEXContent {
    id: root

    readonly property var info: root.frame.info
    readonly property string presetId: root.info["id"]
    readonly property var differences: PresetActions.version >= 0
                                       ? PresetActions.differences(root.presetId) : []

    function names() {
        return root.differences.map(function (each) {
            return each.name
        })
    }

    width: 600
    height: 400
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: titleBar.text
    Keys.onEscapePressed: root.frame.cancelClicked()

    component Cell: VEXLabel {
        width: 150
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: Theme.smallText
    }

    VEXPopupsTitleBar {
        id: titleBar

        control: root
        text: ToolFun.tr("Changes in “%1”").arg(PresetActions.version >= 0
                                              ? PresetActions.title(root.presetId) : "")
    }

    VEXLabel {
        id: words

        anchors {
            left: parent.left
            right: parent.right
            top: titleBar.bottom
            margins: Theme.margin
        }
        elide: Text.ElideNone
        wrapMode: Text.WordWrap
        text: {
            const base = PresetActions.baseCaption(root.presetId)
            return base === "" ? ToolFun.tr("It isn’t known what this preset was made from.")
                               : root.differences.length === 0
                                 ? ToolFun.tr("None: all values are those of %1.").arg(base)
                                 : ToolFun.tr("It was made from %1, with these changes:").arg(base)
        }
    }

    ListView {
        id: list

        anchors {
            left: parent.left
            right: parent.right
            top: words.bottom
            bottom: buttons.top
            margins: Theme.margin
        }
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: root.differences
        Accessible.role: Accessible.List
        Accessible.name: titleBar.text

        delegate: Item {
            id: row

            required property var modelData

            width: list.width
            height: 40
            Accessible.role: Accessible.ListItem
            Accessible.name: ToolFun.tr("%1: %2").arg(row.modelData.label).arg(change.text)

            Cell {
                id: label

                text: row.modelData.label
                Accessible.ignored: true
            }

            Cell {
                id: change

                anchors {
                    left: label.right
                    leftMargin: Theme.spacing
                    right: back.left
                    rightMargin: Theme.spacing
                }
                text: row.modelData.base + "  →  " + row.modelData.own
                color: Theme.font_color_grade4
                Accessible.ignored: true
            }

            VEXButton {
                id: back

                anchors {
                    right: parent.right
                    rightMargin: 4
                    verticalCenter: parent.verticalCenter
                }
                implicitHeight: 28
                font.pixelSize: Theme.smallText
                text: ToolFun.tr("Take back")
                Accessible.description: row.modelData.label
                onClicked: PresetActions.resetToBase(root.presetId, [row.modelData.name])
            }
        }
    }

    Row {
        id: buttons

        anchors {
            right: parent.right
            rightMargin: 20
            bottom: parent.bottom
            bottomMargin: 12
        }
        spacing: 12

        VEXButton {
            implicitHeight: Theme.smallControlHeight
            font.pixelSize: Theme.smallText
            visible: root.differences.length > 1
            text: ToolFun.tr("Take all back")
            onClicked: PresetActions.resetToBase(root.presetId, root.names())
        }

        VEXBottomButton {
            control: root
            okText: ToolFun.tr("Close")
        }
    }
}
