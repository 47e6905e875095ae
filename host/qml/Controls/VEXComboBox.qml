import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Public 1.0
import VexTheme 1.0

/*! A box to choose one of a few values from. Its user says through transText() how they read. */
T.ComboBox {
    id: root

    readonly property ThemeColours theme: Theme.around(root)

    function transText(text) {
        return String(text)
    }

    function shownAt(index) {
        return index >= 0 && index < root.count ? root.transText(root.model[index]) : ""
    }

    implicitWidth: 170
    implicitHeight: Theme.smallControlHeight
    leftPadding: 10
    rightPadding: 28
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    font.pixelSize: Theme.smallText
    displayText: root.shownAt(root.currentIndex)
    Accessible.role: Accessible.ComboBox
    Accessible.description: root.displayText

    contentItem: Text {
        text: root.displayText
        textFormat: Text.PlainText
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        font: root.font
        color: root.enabled ? root.theme.font_color_grade2 : root.theme.font_color_disabled
    }

    indicator: VEXIcon {
        x: root.width - width - 8
        y: (root.height - height) / 2
        size: Theme.smallIcon
        source: "qrc:/window/images/arrow_down.svg"
        rotation: root.popup.visible ? 180 : 0
        opacity: root.enabled ? 1 : Theme.disabledOpacity
    }

    background: Rectangle {
        radius: Theme.radius_1
        border.width: 1
        border.color: !root.enabled ? root.theme.rule
                                    : root.hovered || root.popup.visible
                                      ? root.theme.font_color_grade3 : root.theme.frame
        color: !root.enabled ? root.theme.secondary_gradeTone4
                             : root.down ? root.theme.hover : root.theme.basics_gradeTone1

        VEXFocusFrame {
            visible: root.visualFocus
        }
    }

    delegate: T.ItemDelegate {
        id: entry

        required property int index
        required property var modelData

        width: ListView.view.width
        implicitHeight: 30
        leftPadding: 10
        rightPadding: 10
        hoverEnabled: true
        highlighted: root.highlightedIndex === entry.index
        text: root.transText(entry.modelData)
        Accessible.role: Accessible.ListItem
        Accessible.name: entry.text
        Accessible.selected: root.currentIndex === entry.index

        contentItem: Text {
            text: entry.text
            textFormat: Text.PlainText
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
            font.pixelSize: root.font.pixelSize
            color: root.currentIndex === entry.index ? root.theme.accentText
                                                     : root.theme.font_color_grade2
        }

        background: Rectangle {
            color: entry.highlighted ? root.theme.basics_gradeTone7 : root.theme.basics_gradeTone1
        }
    }

    popup: T.Popup {
        y: root.height + 2
        width: root.width
        height: Math.min(contentItem.implicitHeight + topPadding + bottomPadding, 30 * 7 + 8)
        padding: 4
        margins: 4

        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: root.delegateModel
            currentIndex: root.highlightedIndex
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            T.ScrollBar.vertical: VEXScrollBar {
                theme: root.theme
            }
        }

        background: Rectangle {
            radius: Theme.radius_1
            border.width: 1
            border.color: root.theme.frame
            color: root.theme.basics_gradeTone1
        }
    }
}
