import QtQuick 2.15
import QtQuick.Controls 2.5
import QtQuick.Layouts 1.12
import Qt.labs.settings 1.0
import QtGraphicalEffects 1.0
import Converter 1.0
import CVFormats 1.0
import Controls 1.0
import Public 1.0
import VexTheme 1.0
import "."

/*! The picker of an output preset, for a whole page of the host or for one task of its list. */
Popup {
    id: root

    property var mainPageHeight: 0
    property var fromPage: "Converter"
    property var listId: null
    property var listFormatId: null
    property var openWay: false
    property var globalID: root.fromPage === "Converter" ? O_Setting.converterGlobalId
                                                         : O_Setting.editorGlobalId
    property var curTag: O_FormatsProxy.getTagAndClassById(root.presetInUse())["tag"]
    property var curClass: O_FormatsProxy.getTagAndClassById(root.presetInUse())["class"]
    property string curId: root.presetInUse()
    property string selectTag: root.curTag ?? ""
    property string selectClass: root.curClass ?? ""
    property var curTagModel: O_FormatsProxy.formatListModelProxy()
    property var srcModel: O_FormatsProxy.formatListModel()

    readonly property string recently: "recently"
    readonly property bool recentlyShown: root.selectTag === root.recently

    signal openSelect()

    function presetInUse() {
        return (root.openWay ? root.globalID : root.listFormatId) ?? ""
    }

    function choose(id) {
        target.assign(id)
        root.close()
    }

    function deletePreset(id) {
        if (O_ConverterProxy.checkFormatUsed(id) || O_EditorProxy.checkFormatUsed(id)) {
            O_ConverterProxy.openSelectFormatMsgBox({
                "showText": ToolFun.tr(
                    "The selected format cannot be deleted because it is in use.")
            })
            return
        }
        O_FormatsProxy.delUserDefineFormat(root.selectTag, root.selectClass, id)
        if (id === O_Setting.converterGlobalId || id === O_Setting.editorGlobalId) {
            // Only the page that opened the picker is reset, whichever of the two used the preset.
            target.assignGlobal("Video_MP4_001")
        }
    }

    function converterButtonWidth() {
        return root.buttonWidth(ToolFun.tr("Convert all to"))
    }

    function editorButtonWidth() {
        return root.buttonWidth(ToolFun.tr("Format"))
    }

    function buttonWidth(caption) {
        return buttonFont.advanceWidth(caption + ":") + 8 + 16
    }

    function showPresetInUse() {
        // The global preset decides, also when the picker is opened for a task.
        if (O_FormatsProxy.getTagAndClassById(root.globalID)["tag"] !== root.recently) {
            const place = O_FormatsProxy.getTagAndClassById(root.presetInUse())
            root.showFormatsOf(place["tag"] ?? "")
            root.selectClass = place["class"] ?? ""
        } else {
            root.curTagModel = O_FormatsProxy.recentlyFormatsModel()
        }
        if (O_FormatsProxy.isFormatInRecently(root.presetInUse())) {
            root.selectTag = root.recently
        }
    }

    // Detaches the model while its filter changes: a list that is still building rows ahead would
    // warn about removed ones.
    function showFormatsOf(tag) {
        root.curTagModel = null
        root.selectTag = tag
        O_FormatsProxy.setFormatTag(tag)
        root.curTagModel = O_FormatsProxy.formatListModelProxy()
    }

    function search(text) {
        const shown = text === "" ? root.curTagModel : O_FormatsProxy.formatListModelProxy()
        root.curTagModel = null
        O_FormatsProxy.formatListModelProxy().searchKey = text
        root.curTagModel = shown
        root.reselectClass()
    }

    function showTag(tag) {
        tagBar.clearSearch()
        if (tag === root.recently) {
            root.selectTag = tag
            root.curTagModel = O_FormatsProxy.recentlyFormatsModel()
            return
        }
        root.showFormatsOf(tag)
        root.reselectClass()
        root.openSelect()
    }

    function reselectClass() {
        if (root.curTagModel !== O_FormatsProxy.formatListModelProxy()) {
            return
        }
        if (root.curTagModel.isInProxyModel(root.curClass)) {
            root.selectClass = root.curClass
        } else if (root.curTagModel.count() > 0) {
            root.selectClass = root.curTagModel.getTitle(0)
        }
    }

    function type(text) {
        if (!tagBar.searching) {
            const known = ![undefined, "", root.recently].includes(root.curTag)
            root.showTag(known ? root.curTag : "video")
        }
        tagBar.type(text)
    }

    width: 760
    height: 430
    padding: 1
    focus: true
    closePolicy: Popup.CloseOnPressOutside | Popup.CloseOnEscape

    onOpened: {
        root.showPresetInUse()
        root.curId = root.presetInUse()
        content.forceActiveFocus()
        catalogue.presets = Qt.binding(function () {
            return root.recentlyShown ? [] : root.srcModel.formatDetailModel(root.selectClass)
        })
        ToolFun.timerOnce(100, function () {
            // The host may have destroyed the picker in the meantime.
            if (root) {
                root.openSelect()
            }
        })
    }
    onClosed: tagBar.clearSearch()
    onOpenSelect: catalogue.showSelected()

    background: PickerFrame {}

    contentItem: Item {
        id: content

        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: ToolFun.tr("Format")
        Keys.onPressed: function (event) {
            const isText = event.text > " " && event.key !== Qt.Key_Delete
            const isShortcut = event.modifiers & (Qt.ControlModifier | Qt.AltModifier
                                                  | Qt.MetaModifier)
            if (isText && !isShortcut) {
                root.type(event.text)
            } else if ([Qt.Key_Down, Qt.Key_Up, Qt.Key_Return, Qt.Key_Enter].includes(event.key)) {
                (root.recentlyShown ? recentlyPanel : catalogue).focusPresets()
            } else {
                return
            }
            event.accepted = true
        }

        FormatTagBar {
            id: tagBar

            width: parent.width
            selectedTag: root.selectTag
            searchable: !root.recentlyShown
            onTagChosen: function (tag) { root.showTag(tag) }
            onSearched: function (text) { root.search(text) }
            onFocusReleased: content.forceActiveFocus()
        }

        Rectangle {
            id: line

            anchors.top: tagBar.bottom
            width: parent.width
            height: 1
            color: ScreenStyle.rule
        }

        RecentlyPanel {
            id: recentlyPanel

            anchors {
                top: line.bottom
                bottom: parent.bottom
            }
            width: parent.width
            visible: root.recentlyShown
            page: root
        }

        CataloguePanel {
            id: catalogue

            anchors {
                top: line.bottom
                bottom: parent.bottom
            }
            width: parent.width
            visible: !root.recentlyShown
            page: root
        }
    }

    Connections {
        target: O_ConverterProxy
        function onSignalCreateNewFormatMsgClose(id) {
            root.curId = id
            catalogue.showLastPreset()
        }
    }

    PresetTarget {
        id: target

        page: root.fromPage
        wholePage: root.openWay
        taskId: root.listId
    }

    FontMetrics {
        id: buttonFont

        font.pixelSize: ScreenStyle.smallText
    }
}
