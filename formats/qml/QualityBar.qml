import QtQuick 2.15
import QtQuick.Controls 2.5
import "."

/*! Three segments, one of them selected. */
Rectangle {
    id: root

    required property string selected
    readonly property var qualities: ["High Quality", "Default", "Low Quality"]

    signal chosen(string quality)

    function step(index) {
        const segment = segments.itemAt(index)
        if (segment) {
            root.chosen(segment.modelData)
            segment.forceActiveFocus(Qt.TabFocusReason)
        }
    }

    width: 528
    height: 34
    color: VexThemeMgr.curTheme.secondary_gradeTone4
    radius: VexThemeMgr.curTheme.radius_7
    Accessible.role: Accessible.Grouping
    Accessible.name: ToolFun.tr("Quality")

    Row {
        anchors.centerIn: parent
        spacing: 5

        Repeater {
            id: segments

            model: root.qualities

            RadioButton {
                id: segment

                required property string modelData
                required property int index
                readonly property bool isSelected: root.selected === segment.modelData

                width: 172
                height: 34
                padding: 0
                indicator: null
                checked: segment.isSelected
                text: ToolFun.tr(segment.modelData)
                focusPolicy: segment.isSelected || segment.activeFocus ? Qt.TabFocus : Qt.NoFocus
                Accessible.role: Accessible.RadioButton
                Accessible.name: segment.text
                Accessible.checkable: true
                Accessible.checked: segment.isSelected
                onClicked: {
                    segment.forceActiveFocus(Qt.MouseFocusReason)
                    root.chosen(segment.modelData)
                }
                Keys.onLeftPressed: root.step(segment.index - 1)
                Keys.onRightPressed: root.step(segment.index + 1)

                contentItem: Text {
                    text: segment.text
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    color: ScreenStyle.text
                    font.pixelSize: ScreenStyle.smallText
                }

                background: Rectangle {
                    radius: 81
                    color: segment.isSelected ? VexThemeMgr.curTheme.basics_gradeTone1
                                              : "transparent"
                    border.width: segment.isSelected ? 1 : 0
                    border.color: VexThemeMgr.curTheme.secondary_gradeTone3

                    FocusRing {
                        anchors.fill: parent
                        radius: parent.radius
                        visible: segment.visualFocus
                    }
                }
            }
        }
    }
}
