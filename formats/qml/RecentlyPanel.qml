import QtQuick 2.15
import QtQuick.Controls 2.5
import "."

/*! The recently-used presets. */
Item {
    id: root

    required property Popup page

    function focusPresets() {
        list.forceActiveFocus(Qt.TabFocusReason)
    }

    PickerList {
        id: list

        anchors.fill: parent
        model: O_FormatsProxy.recentlyFormatsModel()
        isSelected: function (row) {
            return list.model.getId(row) === root.page.curId
        }
        Accessible.name: ToolFun.tr("recently")
        Keys.onDeletePressed: {
            if (list.currentItem) {
                list.currentItem.remove()
            }
        }

        delegate: RecentlyRow {
            width: list.width
            page: root.page
        }
    }

    EmptyNotice {
        anchors.centerIn: parent
        width: parent.width - 2 * ScreenStyle.margin
        visible: list.count === 0
        image {
            source: "./image/Notata.png"
            width: 240
            height: 240
        }
        text: ToolFun.tr("No data")
    }
}
