import QtQuick 2.15
import QtQuick.Layouts 1.12
import "."

/*! The tags of the catalogue, and the search field unless the recently-used list is shown. */
Rectangle {
    id: root

    required property string selectedTag
    required property bool searchable
    readonly property bool searching: searchBox.text !== ""

    signal tagChosen(string tag)
    signal searched(string text)
    signal focusReleased()

    function clearSearch() {
        searchBox.text = ""
        root.releaseFocus()
    }

    function type(text) {
        searchBox.type(text)
    }

    function releaseFocus() {
        if (searchBox.editing) {
            root.focusReleased()
        }
    }

    implicitHeight: 48
    color: VexThemeMgr.curTheme.basics_gradeTone7
    // A hidden field must not keep filtering.
    onSearchableChanged: {
        if (!root.searchable) {
            root.clearSearch()
        }
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.releaseFocus()
    }

    RowLayout {
        readonly property int available: searchBox.x - 2 * ScreenStyle.margin

        x: ScreenStyle.margin
        width: Math.min(implicitWidth, available)
        height: parent.height
        spacing: 24
        Accessible.role: Accessible.PageTabList
        Accessible.name: ToolFun.tr("Format")

        Repeater {
            id: tags

            function step(index) {
                const tag = tags.itemAt(index)
                if (tag) {
                    tag.clicked()
                    tag.forceActiveFocus(Qt.TabFocusReason)
                }
            }

            model: O_FormatsProxy.formatTags

            FormatTag {
                id: tag

                required property string modelData
                required property int index

                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.maximumWidth: implicitWidth
                tag: tag.modelData
                selected: root.selectedTag === tag.modelData
                onClicked: root.tagChosen(tag.modelData)
                Keys.onLeftPressed: tags.step(tag.index - 1)
                Keys.onRightPressed: tags.step(tag.index + 1)
            }
        }
    }

    FormatSearchBox {
        id: searchBox

        anchors {
            right: parent.right
            rightMargin: ScreenStyle.margin
            verticalCenter: parent.verticalCenter
        }
        visible: root.searchable
        onTextChanged: root.searched(searchBox.text)
    }
}
