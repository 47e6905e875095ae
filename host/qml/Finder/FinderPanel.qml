import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Controls 1.0
import Converter 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! Finds a preset by what the user knows of it, and gives it to the page's files. */
T.Popup {
    id: root

    required property PageProxy page

    readonly property FinderRow row: list.row
    /*! What the user types about a preset: its "title", its "note" or nothing. */
    property string typing: ""
    readonly property string offered: root.page.offer.text

    function search() {
        PresetFinder.search(field.text, filters.kind, filters.codec, filters.size)
        list.goTo(0)
    }

    function use(id) {
        if (id !== "" && PresetFinder.problemWith(id) === "") {
            root.page.useFormatForSelected(id)
            root.close()
        }
    }

    function openMenu(row, button) {
        menu.presetId = row.presetId
        menu.isFavorite = row.isFavorite
        menu.isOwn = row.isOwn
        menu.isUsable = row.isUsable
        menu.popup(button, 0, button.height)
    }

    width: Math.min(760, parent.width - 2 * Theme.wideMargin)
    height: parent.height - 2 * Theme.margin
    x: (parent.width - width) / 2
    y: Theme.margin
    padding: Theme.margin
    focus: true
    // While something is typed about a preset or dragged, Escape gives that up.
    closePolicy: root.typing === "" && !list.isDragging
                 ? T.Popup.CloseOnPressOutside | T.Popup.CloseOnEscape
                 : T.Popup.CloseOnPressOutside
    onAboutToShow: {
        root.typing = ""
        field.clear()
        filters.clear()
        PresetFinder.open(root.page)
        list.goTo(0)
    }
    // The button that was clicked may be gone.
    onOfferedChanged: {
        if (root.opened && root.typing === "") {
            field.forceActiveFocus(Qt.OtherFocusReason)
        }
    }
    onOpened: field.forceActiveFocus(Qt.PopupFocusReason)
    // What nobody sees needs no search when presets change.
    onClosed: PresetFinder.search("", "", "", "")

    background: Rectangle {
        radius: Theme.radius_2
        color: Theme.basics_gradeTone1
        border.width: 1
        border.color: Theme.frame
    }

    Item {
        width: root.availableWidth
        height: root.availableHeight
        Accessible.role: Accessible.Dialog
        Accessible.name: ToolFun.tr("Find a preset")
        Keys.onEscapePressed: function (event) {
            event.accepted = list.isDragging
            list.endDrag()
        }

        VEXTextField {
            id: field

            width: parent.width - exchange.width - Theme.spacing
            height: Theme.controlHeight
            leftPadding: 36
            rightPadding: 10
            font.pixelSize: Theme.mediumText
            activeFocusOnTab: true
            placeholderText: ToolFun.tr("Find a preset")
            inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
            Accessible.name: ToolFun.tr("Find a preset")
            Accessible.searchEdit: true
            Accessible.description: root.row === null ? PresetFinder.remark : root.row.spoken
            onTextEdited: root.search()
            Keys.onDownPressed: function (event) { list.step(1, event.modifiers) }
            Keys.onUpPressed: function (event) { list.step(-1, event.modifiers) }
            Keys.onReturnPressed: root.use(PresetFinder.idAt(list.currentIndex))
            Keys.onEnterPressed: root.use(PresetFinder.idAt(list.currentIndex))
            Keys.onMenuPressed: list.openMenu()
            Keys.onPressed: function (event) {
                const control = event.modifiers & Qt.ControlModifier
                event.accepted = true
                if (event.key === Qt.Key_PageDown || event.key === Qt.Key_PageUp) {
                    list.page(event.key === Qt.Key_PageDown ? 1 : -1)
                } else if (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier) {
                    list.openMenu()
                } else if (event.key === Qt.Key_F2 && root.row !== null && root.row.isOwn) {
                    editor.begin("title")
                } else if (control && event.key === Qt.Key_D && root.row !== null) {
                    PresetActions.setFavorite(root.row.presetId, !root.row.isFavorite)
                } else if (control && event.key === Qt.Key_Z && field.text === "") {
                    PresetActions.undoLast(root.page)
                } else {
                    event.accepted = false
                }
            }

            background: Rectangle {
                radius: Theme.radius_1
                color: Theme.basics_gradeTone1
                border.width: 1
                border.color: field.activeFocus ? Theme.font_color_grade3 : Theme.frame
            }

            VEXIcon {
                x: 10
                anchors.verticalCenter: parent.verticalCenter
                size: 20
                source: "qrc:/window/images/search.svg"
            }
        }

        ExchangeButton {
            id: exchange

            anchors {
                right: parent.right
                verticalCenter: field.verticalCenter
            }
        }

        FinderFilters {
            id: filters

            anchors {
                top: field.bottom
                topMargin: 10
            }
            width: parent.width
            onKindChanged: root.search()
            onCodecChanged: root.search()
            onSizeChanged: root.search()
        }

        VEXLabel {
            id: target

            anchors {
                top: filters.bottom
                topMargin: 10
            }
            width: parent.width
            font.pixelSize: Theme.smallText
            color: Theme.font_color_grade4
            text: ToolFun.joined([root.page.selection.count > 0
                                  ? ToolFun.tr("For the selected files: %1")
                                    .arg(root.page.selection.count)
                                  : ToolFun.tr("For all files"),
                                  ToolFun.tr("Presets: %1").arg(PresetFinder.count)])
        }

        FinderList {
            id: list

            anchors {
                top: target.bottom
                topMargin: 6
                bottom: offer.visible ? offer.top : parent.bottom
                bottomMargin: offer.visible ? Theme.spacing : 0
            }
            width: parent.width
            onUseWanted: function (presetId) { root.use(presetId) }
            onMenuWanted: function (row, button) { root.openMenu(row, button) }
        }

        VEXLineField {
            id: editor

            property string presetId

            function begin(what) {
                const id = root.row.presetId
                const place = root.row.mapToItem(parent, 40, 0)
                editor.presetId = id
                editor.x = place.x
                editor.y = place.y
                root.typing = what
                editor.text = what === "title" ? PresetActions.title(id) : PresetActions.note(id)
                editor.field.selectAll()
                editor.field.forceActiveFocus(Qt.PopupFocusReason)
            }

            function end() {
                root.typing = ""
                field.forceActiveFocus(Qt.OtherFocusReason)
            }

            width: list.width - 120
            visible: root.typing !== ""
            purpose: root.typing === "title" ? ToolFun.tr("Title") : ToolFun.tr("Note")
            field.placeholderText: editor.purpose
            field.onAccepted: {
                list.keepAt = editor.presetId
                if (root.typing === "title") {
                    PresetActions.rename(editor.presetId, editor.text)
                } else {
                    PresetActions.setNote(editor.presetId, editor.text)
                }
                editor.end()
            }
            Keys.onEscapePressed: editor.end()
        }

        VEXLabel {
            anchors {
                left: parent.left
                right: parent.right
                margins: Theme.wideMargin
                verticalCenter: list.verticalCenter
            }
            visible: PresetFinder.remark !== ""
            text: PresetFinder.remark
            elide: Text.ElideNone
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignHCenter
            color: Theme.font_color_grade4
        }

        OfferBar {
            id: offer

            anchors {
                horizontalCenter: parent.horizontalCenter
                bottom: parent.bottom
            }
            page: root.page
        }
    }

    FinderMenu {
        id: menu

        objectName: "presetMenu"

        page: root.page
        onUseWanted: root.use(menu.presetId)
        onTypingWanted: function (what) { root.typing = what }
        onDuplicated: function (id) { list.keepAt = id }
        onClosed: {
            field.forceActiveFocus(Qt.PopupFocusReason)
            if (root.typing !== "") {
                editor.begin(root.typing)
            }
        }
    }
}
