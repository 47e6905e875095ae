import QtQuick 2.15
import QtQuick.Controls 2.5
import Controls 1.0
import "."

/*! A recently-used preset, named after its format. */
PresetRowBase {
    id: root

    readonly property string formatIcon: O_FormatsProxy.getClassIconById(root.presetId)

    function remove() {
        O_FormatsProxy.delFromRecently(root.presetId)
    }

    implicitHeight: 50
    title: {
        const format = O_FormatsProxy.getTagAndClassById(root.presetId)["class"] ?? ""
        const separator = root.model.title === "Same as source" ? " - " : "- "
        return format + separator + root.shownTitle()
    }
    quality: root.isVideo ? root.shownSetting(root.model.videoResolution, "")
                          : root.shownSetting(root.model.audioBitrate, " kbps")
    encoder: root.shownEncoders()
    icon: root.formatIcon === "" ? "" : "./image/" + root.formatIcon + ".svg"
    titleWidth: 239
    valueWidth: 165
    columnSpacing: 32
    hoverColor: "#F8F6FF"
    buttonHovered: deleteButton.hovered

    VEXImageButton {
        id: deleteButton

        anchors {
            right: parent.right
            rightMargin: 24
            verticalCenter: parent.verticalCenter
        }
        width: 16
        height: 16
        activeFocusOnTab: false
        mode: AbstractButton.IconOnly
        iconSize: dpi(16)
        iconSource: "qrc:/qml/Main/Converter/images/format_delete_rec.svg"
        Accessible.role: Accessible.Button
        Accessible.name: ToolFun.tr("Delete")
        onClicked: root.remove()
    }
}
