import QtQuick 2.15
import QtQuick.Controls 2.5
import Controls 1.0
import MessageBox 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! Shows what would become of the presets of files, info["presets"], and imports them if the user
 *  says so. */
VEXContent {
    id: root

    readonly property var info: root.frame.info
    readonly property var states: ["new", "conflict", "same", "refused"]
    readonly property var presets: root.info["presets"]
    readonly property int importable: root.info["importable"]
    readonly property int conflicting: root.countOf("conflict")

    function countOf(state) {
        return root.presets.filter(function (each) {
            return each.state === state
        }).length
    }

    function stateText(state) {
        return state === "new" ? ToolFun.tr("new")
                               : state === "same" ? ToolFun.tr("already there")
                               : state === "conflict" ? ToolFun.tr("another one is there")
                                                      : ToolFun.tr("refused")
    }

    width: 640
    height: 460
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: titleBar.text
    Keys.onEscapePressed: root.frame.cancelClicked()
    onActiveFocusChanged: {
        if (root.activeFocus) {
            (root.importable > 0 ? importButton : closeButton).forceActiveFocus()
        }
    }

    VEXPopupsTitleBar {
        id: titleBar

        control: root
        text: ToolFun.tr("Import presets")
    }

    VEXLabel {
        id: summary

        anchors {
            left: parent.left
            right: parent.right
            top: titleBar.bottom
            margins: Theme.margin
        }
        elide: Text.ElideNone
        wrapMode: Text.WordWrap
        font.pixelSize: Theme.smallText
        color: Theme.font_color_grade4
        text: ToolFun.joined(root.states.filter(function (state) {
            return root.countOf(state) > 0
        }).map(function (state) {
            return ToolFun.tr("%1: %2").arg(root.stateText(state))
                .arg(root.countOf(state).toLocaleString(Qt.locale(), "f", 0))
        }))
    }

    ListView {
        id: list

        // A single preset has room for all that is to be said.
        property var openRows: root.presets.length === 1 ? [0] : []

        function toggle(row) {
            list.openRows = list.openRows.includes(row) ? list.openRows.filter(function (each) {
                return each !== row
            }) : list.openRows.concat(row)
            list.currentIndex = row
            list.positionViewAtIndex(row, ListView.Contain)
        }

        function page(by) {
            const rows = Math.max(1, Math.floor(list.height / list.currentItem.height))
            list.currentIndex = Math.max(0, Math.min(list.currentIndex + by * rows, list.count - 1))
        }

        anchors {
            left: parent.left
            leftMargin: Theme.spacing
            right: parent.right
            rightMargin: Theme.spacing
            top: summary.bottom
            topMargin: Theme.spacing
            bottom: conflict.top
            bottomMargin: Theme.spacing
        }
        clip: true
        spacing: 2
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        activeFocusOnTab: true
        model: root.presets
        Accessible.role: Accessible.List
        Accessible.name: titleBar.text + ", " + summary.text
        Keys.onSpacePressed: list.toggle(list.currentIndex)
        Keys.onReturnPressed: list.toggle(list.currentIndex)
        Keys.onEnterPressed: list.toggle(list.currentIndex)
        Keys.onPressed: function (event) {
            const isDown = event.key === Qt.Key_PageDown
            if (isDown || event.key === Qt.Key_PageUp) {
                list.page(isDown ? 1 : -1)
                event.accepted = true
            }
        }

        ScrollBar.vertical: VEXScrollBar {}

        delegate: ImportRow {
            id: row

            width: list.width - 10
            isCurrent: row.ListView.isCurrentItem && list.activeFocus
            isOpen: list.openRows.includes(row.index)
            stateText: root.stateText(row.modelData.state)
            onToggled: list.toggle(row.index)
        }
    }

    Row {
        id: conflict

        anchors {
            left: parent.left
            leftMargin: Theme.margin
            bottom: buttons.top
            bottomMargin: 12
        }
        height: root.conflicting > 0 ? Theme.smallControlHeight : 0
        visible: root.conflicting > 0
        spacing: Theme.spacing

        VEXLabel {
            width: 330
            height: parent.height
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            font.pixelSize: Theme.smallText
            text: ToolFun.tr("If you have another one of this title and format")
        }

        VEXComboBox {
            id: choice

            function transText(text) {
                return ToolFun.tr(text)
            }

            width: 260
            // In the order of PresetExchange.Conflict.
            model: ["Keep both", "Replace", "Skip"]
            Accessible.name: ToolFun.tr("If you have another one of this title and format")
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
            id: closeButton

            implicitHeight: Theme.smallControlHeight
            font.pixelSize: Theme.smallText
            primary: root.importable === 0
            text: root.importable > 0 ? ToolFun.tr("Cancel") : ToolFun.tr("Close")
            onClicked: root.frame.cancelClicked()
        }

        VEXButton {
            id: importButton

            implicitHeight: Theme.smallControlHeight
            font.pixelSize: Theme.smallText
            primary: true
            visible: root.importable > 0
            text: ToolFun.tr("Import")
            onClicked: {
                PresetExchange.importPresets(choice.currentIndex)
                root.frame.cancelClicked()
            }
        }
    }
}
