import QtQuick 2.15
import QtQuick.Window 2.15
import QtQuick.Controls 2.5
import Controls 1.0
import Converter 1.0
import Finder 1.0
import VexTheme 1.0
import VexWindow 1.0
import "qrc:/formats"

/*! The window: its two pages, and the picker that both use. */
ApplicationWindow {
    id: root

    readonly property TaskPage shownPage: tabs.current === 0 ? converterPage : editorPage
    property alias currentPage: tabs.current
    property alias picker: picker
    property alias finder: finder
    readonly property PageProxy busyPage: ConverterProxy.isBusy ? ConverterProxy : EditorProxy
    property bool isClosing: false
    /*! Something is open that the user is choosing from. */
    readonly property bool isAsking: picker.visible || finder.visible || closeQuestion.visible

    /*! Opens the picker at \a button, above it where there is room. */
    function openPicker(button, taskId, formatId) {
        picker.fromPage = tabs.current === 0 ? "Converter" : "Editor"
        picker.openWay = taskId === null
        picker.listId = taskId
        picker.listFormatId = formatId
        picker.mainPageHeight = root.shownPage.height
        const place = button.mapToItem(root.contentItem, 0, 0)
        const above = place.y - picker.height - 8
        const below = place.y + button.height + 8
        const fitsAbove = above >= 8
        const fitsBelow = below + picker.height <= root.contentItem.height - 8
        picker.x = Math.max(8, Math.min(place.x, root.contentItem.width - picker.width - 8))
        picker.y = fitsAbove ? above
                             : fitsBelow ? below
                                         : Math.max(8, (root.contentItem.height - picker.height) / 2)
        picker.open()
    }

    function openGlobalPicker() {
        root.openPicker(root.shownPage.globalButton, null, null)
    }

    width: 1040
    height: 700
    minimumWidth: 760
    minimumHeight: 480
    visible: true
    title: root.busyPage.overall === "" ? "VexConvert"
                                        : root.busyPage.overall + " – VexConvert"
    onClosing: function (close) {
        close.accepted = root.isClosing || !root.busyPage.isBusy
        if (!close.accepted) {
            closeQuestion.open()
        }
    }
    color: Theme.basics_gradeTone2

    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: root.close()
    }

    Shortcut {
        sequence: "Ctrl+,"
        onActivated: Dialogs.showPreferences()
    }

    Shortcut {
        sequence: "Ctrl+O"
        onActivated: FileChooser.chooseFiles(root.shownPage.page)
    }

    Shortcut {
        sequence: "Ctrl+F"
        onActivated: finder.open()
    }

    Rectangle {
        id: top

        width: parent.width
        height: 60
        color: Theme.basics_gradeTone1

        PageTabs {
            id: tabs

            anchors {
                left: parent.left
                leftMargin: Theme.margin
                verticalCenter: parent.verticalCenter
            }
            captions: [ToolFun.tr("Converter"), ToolFun.tr("Editor")]
        }

        Row {
            anchors {
                right: parent.right
                rightMargin: Theme.wideMargin
                verticalCenter: parent.verticalCenter
            }
            spacing: Theme.spacing

            VEXButton {
                text: ToolFun.tr("Add folder")
                onClicked: FileChooser.chooseMediaFolder(root.shownPage.page)
            }

            VEXButton {
                text: ToolFun.tr("Add files")
                onClicked: FileChooser.chooseFiles(root.shownPage.page)
            }

            VEXImageButton {
                anchors.verticalCenter: parent.verticalCenter
                width: 32
                height: 32
                iconSize: 20
                iconSource: "qrc:/window/images/preferences.svg"
                Accessible.name: ToolFun.tr("Preferences")
                onClicked: Dialogs.showPreferences()
            }
        }

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.rule
        }
    }

    NoticeBar {
        id: notice

        anchors.top: top.bottom
        width: parent.width
        text: Notices.text
        onDismissed: Notices.dismiss()
    }

    Item {
        anchors {
            top: notice.bottom
            bottom: parent.bottom
        }
        width: parent.width

        TaskPage {
            id: converterPage

            anchors.fill: parent
            visible: tabs.current === 0
            page: ConverterProxy
            canCut: false
            formatLabel: ToolFun.tr("Convert all to")
            formatLabelWidth: picker.converterButtonWidth()
            onPickerAsked: function (button, taskId, formatId) {
                root.openPicker(button, taskId, formatId)
            }
            onFinderAsked: finder.open()
        }

        TaskPage {
            id: editorPage

            anchors.fill: parent
            visible: tabs.current === 1
            page: EditorProxy
            canCut: true
            formatLabel: ToolFun.tr("Format")
            formatLabelWidth: picker.editorButtonWidth()
            onPickerAsked: function (button, taskId, formatId) {
                root.openPicker(button, taskId, formatId)
            }
            onFinderAsked: finder.open()
        }
    }

    FinderPanel {
        id: finder

        page: root.shownPage.page
    }

    CloseQuestion {
        id: closeQuestion

        onConfirmed: {
            root.isClosing = true
            root.close()
        }
    }

    ParameterconversionPage {
        id: picker

        Component.onCompleted: Theme.lightScreen = picker.contentItem
    }

    Binding {
        target: Theme
        property: "isDark"
        value: Appearance.isDark
    }

    Binding {
        target: Theme
        property: "isMoving"
        value: Appearance.isMoving
    }
}
