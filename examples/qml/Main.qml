import QtQuick 2.15
import QtQuick.Controls 2.5
import "qrc:/formats"

/*! A button that opens the picker; the pencils there open the dialog. */
ApplicationWindow {
    id: root

    width: 800
    height: 620
    visible: true
    title: "Output format"

    /*! Where to draw the two screens, if anywhere. */
    readonly property var files: pictures

    Button {
        x: 20
        y: 20
        text: O_Setting.converterGlobalId
        onClicked: picker.open()
    }

    ParameterconversionPage {
        id: picker

        x: 20
        y: 80
        openWay: true
    }

    Popup {
        id: dialog

        anchors.centerIn: Overlay.overlay
        padding: 0
        contentWidth: content.width
        contentHeight: content.height
        modal: true
        closePolicy: Popup.NoAutoClose

        Loader {
            id: content

            active: dialog.visible
            source: "qrc:/formats/DetailedParameterEditingMsgBox.qml"
        }
    }

    Connections {
        target: host

        function onDialogAsked() { dialog.open() }
        function onDialogClosed() { dialog.close() }
        function onMessageAsked(text) { console.log(text) }
    }

    Loader {
        active: root.files.length === 2
        sourceComponent: Pictures {
            files: root.files
            firstScreen: picker
            secondScreen: dialog
        }
    }
}
