import QtQuick 2.15
import QtQuick.Controls 2.5
import "."

/*! The formats of a tag or a search on the left, the presets of the selected one on the right. */
Rectangle {
    id: root

    required property Popup page
    property alias presets: presetList.model

    function focusPresets() {
        presetList.forceActiveFocus(Qt.TabFocusReason)
    }

    function showSelected() {
        formatList.showSelected()
        presetList.showSelected()
    }

    function showLastPreset() {
        presetList.positionViewAtEnd()
    }

    color: VexThemeMgr.curTheme.basics_gradeTone2

    PickerList {
        id: formatList

        readonly property var formats: O_FormatsProxy.formatListModelProxy()

        width: 186
        height: parent.height
        cacheBuffer: count * 48
        model: root.page.recentlyShown ? null : root.page.curTagModel
        isSelected: function (row) {
            return formatList.model === formatList.formats
                && formatList.formats.getTitle(row) === root.page.selectClass
        }
        Accessible.name: ToolFun.tr("Format")
        Keys.onUpPressed: {
            formatList.decrementCurrentIndex()
            formatList.chooseCurrent()
        }
        Keys.onDownPressed: {
            formatList.incrementCurrentIndex()
            formatList.chooseCurrent()
        }
        Keys.onRightPressed: root.focusPresets()

        delegate: FormatRow {
            width: formatList.width
            page: root.page
        }
    }

    Rectangle {
        id: line

        anchors.left: formatList.right
        width: 1
        height: parent.height
        color: ScreenStyle.rule
    }

    PickerList {
        id: presetList

        anchors {
            left: line.right
            right: parent.right
        }
        height: parent.height
        cacheBuffer: count * 60
        isSelected: function (row) {
            return presetList.model.getId(row) === root.page.curId
        }
        onModelChanged: presetList.makeSelectedCurrent()
        Accessible.name: root.page.selectClass
        Keys.onLeftPressed: formatList.forceActiveFocus(Qt.TabFocusReason)
        Keys.onDeletePressed: {
            if (presetList.currentItem) {
                presetList.currentItem.remove()
            }
        }
        Keys.onPressed: function (event) {
            if (event.key === Qt.Key_F2 && presetList.currentItem) {
                presetList.currentItem.edit()
                event.accepted = true
            }
        }

        delegate: PresetRow {
            width: presetList.width
            page: root.page
            besideScrollBar: presetList.scrollable
        }
    }

    Connections {
        target: root.page
        function onCurIdChanged() {
            presetList.makeSelectedCurrent()
        }
    }

    MouseArea {
        anchors.fill: parent
        visible: formatList.count === 0
        hoverEnabled: true
        onWheel: {} // keeps the lists underneath from scrolling

        Rectangle {
            anchors.fill: parent
            color: root.color
        }

        EmptyNotice {
            y: 127
            width: parent.width
            image {
                source: "qrc:/formats/image/noSelect.png"
                width: 80
                height: 80
            }
            text: ToolFun.tr("The format you searched for was not found")
        }
    }
}
