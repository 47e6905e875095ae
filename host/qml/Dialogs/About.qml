import QtQuick 2.15
import MessageBox 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! The versions and licences of the program and of what it uses. */
VEXContent {
    id: root

    readonly property var info: root.frame.info

    width: 500
    height: 40 + 24 + content.implicitHeight + 24 + 56
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: words.text
    Keys.onEscapePressed: root.frame.cancelClicked()
    Keys.onReturnPressed: root.frame.cancelClicked()

    VEXPopupsTitleBar {
        id: titleBar

        control: root
        text: ToolFun.tr("About VexConvert")
    }

    Row {
        id: content

        anchors {
            left: parent.left
            right: parent.right
            margins: Theme.wideMargin
            top: titleBar.bottom
        }
        spacing: Theme.wideMargin

        Image {
            width: 64
            height: 64
            source: "qrc:/window/icon/128.png"
        }

        VEXLabel {
            id: words

            width: parent.width - 64 - parent.spacing
            elide: Text.ElideNone
            wrapMode: Text.WordWrap
            lineHeight: 1.3
            text: [
                ["VexConvert", root.info["program"]].join(" "),
                ["Qt", root.info["qt"]].join(" "),
                ["ffmpeg", root.info["ffmpeg"]].join(" "),
                "",
                ToolFun.tr("VexConvert is free software under the MIT licence."),
                ToolFun.tr("Qt is under the LGPL 3, ffmpeg under the LGPL or the GPL.")
            ].join("\n")
        }
    }

    VEXBottomButton {
        anchors {
            right: parent.right
            rightMargin: 20
            bottom: parent.bottom
            bottomMargin: 12
        }
        control: root
        okText: ToolFun.tr("Close")
    }
}
