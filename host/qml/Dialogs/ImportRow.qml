import QtQuick 2.15
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! A preset that may be imported; opened, it says what becomes of the settings that change. */
Rectangle {
    id: root

    required property int index
    required property var modelData

    required property bool isCurrent
    required property bool isOpen
    required property string stateText

    readonly property bool canOpen: root.modelData.approximated.length > 0
                                    || root.modelData.lost.length > 0
    readonly property string remark: ToolFun.joined([
        root.modelData.reason,
        root.countText(ToolFun.tr("approximated"), root.modelData.approximated),
        root.countText(ToolFun.tr("lost"), root.modelData.lost)
    ])

    signal toggled()

    function isText(text) {
        return text !== ""
    }

    function countText(caption, lines) {
        return lines.length === 0 ? "" : ToolFun.tr("%1: %2").arg(caption).arg(lines.length)
    }

    implicitHeight: words.implicitHeight + 2 * 5
    radius: Theme.radius_1
    color: root.isCurrent ? Theme.accentPale : mouse.containsMouse && root.canOpen
                                               ? Theme.hover : Theme.basics_gradeTone1
    Accessible.role: Accessible.ListItem
    Accessible.name: [root.modelData.title, root.modelData.format, root.stateText, root.remark]
                     .filter(root.isText).join(", ")
    Accessible.description: details.text
    Accessible.selectable: true
    Accessible.selected: root.isCurrent
    Accessible.onPressAction: root.toggled()

    MouseArea {
        id: mouse

        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.toggled()
    }

    component Words: VEXLabel {
        width: words.width
        elide: Text.ElideNone
        wrapMode: Text.Wrap
        font.pixelSize: Theme.smallText
        color: Theme.font_color_grade4
        Accessible.ignored: true
    }

    VEXIcon {
        x: 6
        y: words.y + 3
        size: Theme.smallIcon
        visible: root.canOpen
        source: "qrc:/window/images/arrow_down.svg"
        rotation: root.isOpen ? 0 : -90
    }

    Column {
        id: words

        x: 28
        y: 5
        width: root.width - x - 6
        spacing: 2

        Row {
            spacing: Theme.spacing

            Words {
                width: Math.min(implicitWidth, words.width - format.width - parent.spacing)
                elide: Text.ElideRight
                wrapMode: Text.NoWrap
                text: root.modelData.title
                font.pixelSize: Theme.text
                color: Theme.font_color_grade1
            }

            Words {
                id: format

                width: implicitWidth
                height: parent.height
                text: root.modelData.format
            }
        }

        Row {
            spacing: Theme.spacing

            Words {
                id: state

                width: implicitWidth
                text: root.stateText
                color: root.modelData.state === "refused" ? Theme.danger
                                                          : root.modelData.state === "new"
                                                            ? Theme.success
                                                            : Theme.font_color_grade1
            }

            Words {
                width: words.width - state.width - parent.spacing
                text: root.remark
            }
        }

        Words {
            id: details

            function section(caption, lines) {
                const heading = ToolFun.tr("%1:").arg(caption)
                return lines.length === 0 ? [] : [heading].concat(lines.map(function (line) {
                    return "    " + line
                }))
            }

            visible: root.isOpen && root.canOpen
            text: visible ? details.section(ToolFun.tr("approximated"), root.modelData.approximated)
                            .concat(details.section(ToolFun.tr("lost"), root.modelData.lost))
                            .join("\n")
                          : ""
            lineHeight: 1.15
        }
    }
}
