import QtQuick 2.15
import Controls 1.0
import MessageBox 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! Shows \a info["text"], the log of a conversion, and copies it. */
VEXContent {
    id: root

    readonly property var info: root.frame.info

    width: 720
    height: 480
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: titleBar.text
    Keys.onEscapePressed: root.frame.cancelClicked()

    VEXPopupsTitleBar {
        id: titleBar

        control: root
        text: ToolFun.tr("Log")
    }

    Flickable {
        id: view

        anchors {
            left: parent.left
            right: parent.right
            top: titleBar.bottom
            bottom: buttons.top
            margins: Theme.margin
        }
        contentWidth: width
        contentHeight: log.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        TextEdit {
            id: log

            width: view.width
            text: root.info["text"]
            textFormat: TextEdit.PlainText
            readOnly: true
            selectByMouse: true
            activeFocusOnTab: true
            wrapMode: TextEdit.WrapAtWordBoundaryOrAnywhere
            color: Theme.font_color_grade1
            selectionColor: Theme.font_color_grade3
            selectedTextColor: Theme.onAccent
            font.family: "monospace"
            font.pixelSize: Theme.smallText
            Accessible.name: titleBar.text
            Keys.onDownPressed: view.contentY = Math.min(view.contentY + 40, Math.max(
                                                             0, view.contentHeight - view.height))
            Keys.onUpPressed: view.contentY = Math.max(0, view.contentY - 40)
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
            implicitHeight: Theme.smallControlHeight
            font.pixelSize: Theme.smallText
            text: ToolFun.tr("Copy")
            onClicked: {
                log.selectAll()
                log.copy()
                log.deselect()
            }
        }

        VEXBottomButton {
            control: root
            okText: ToolFun.tr("Close")
        }
    }
}
