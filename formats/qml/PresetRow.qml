import QtQuick 2.15
import QtQuick.Controls 2.5
import Controls 1.0
import "."

/*! A preset of the selected format. */
PresetRowBase {
    id: root

    required property bool besideScrollBar

    readonly property var format: root.page.selectTag
    readonly property var curclass: root.page.selectClass
    readonly property var idIndex: root.presetId
    readonly property var listID: root.page.listId
    readonly property var openTheWay: root.page.openWay
    readonly property var fromPAGE: root.page.fromPage

    function colseItem() {
        root.page.close()
    }

    function edit() {
        O_ConverterProxy.openConvertionParametersMsgBox({
            "format": root.format,
            "curclass": root.curclass,
            "idIndex": root.idIndex,
            "listID": root.listID,
            "openTheWay": root.openTheWay,
            "fromPAGE": root.fromPAGE,
            "closeItem": root,
            "userDefine": root.model.userDefine
        })
    }

    function remove() {
        if (root.model.userDefine) {
            root.page.deletePreset(root.presetId)
        }
    }

    implicitHeight: 64
    title: root.shownTitle()
    // The quality depends on the tag, the encoders on the preset.
    quality: root.page.selectTag === "audio" ? root.shownSetting(root.model.audioBitrate, " kbps")
                                             : root.shownSetting(root.model.videoResolution, "")
    encoder: root.shownEncoders()
    icon: "./image/" + O_FormatsProxy.getClassIconById(root.presetId) + ".svg"
    titleWidth: 174
    valueWidth: 100
    columnSpacing: 32
    hoverColor: ScreenStyle.rowHover
    buttonHovered: editButton.hovered || (deleteButton.item !== null && deleteButton.item.hovered)

    VEXImageButton {
        id: editButton

        anchors.verticalCenter: parent.verticalCenter
        x: 522
        width: 16
        height: 16
        activeFocusOnTab: false
        mode: AbstractButton.IconOnly
        iconSize: dpi(16)
        iconSource: "qrc:/qml/Main/Converter/images/ing_reviseFileName.svg"
        Accessible.role: Accessible.Button
        Accessible.name: ToolFun.tr("Edit")
        onClicked: root.edit()
    }

    Loader {
        id: deleteButton

        anchors {
            top: parent.top
            topMargin: 8
            right: parent.right
            rightMargin: root.besideScrollBar ? 14 : 8
        }
        active: root.model.userDefine

        sourceComponent: VEXImageButton {
            width: 12
            height: 12
            activeFocusOnTab: false
            mode: AbstractButton.IconOnly
            iconSize: dpi(12)
            iconSource: "qrc:/qml/Main/Converter/images/ing_ListDelete.svg"
            Accessible.role: Accessible.Button
            Accessible.name: ToolFun.tr("Delete")
            onClicked: root.remove()
        }
    }
}
