import QtQuick 2.15

/*! The host objects that the library's screens use; main() publishes each under its name there. */
QtObject {
    id: root

    /*! Asks for the dialog with O_Frame.info. */
    signal dialogAsked()
    signal dialogClosed()
    signal messageAsked(string text)

    /*! Scales the size of an icon. */
    readonly property var dpi: function (size) { return size }

    /*! O_ConverterProxy: the page for which presets are picked. */
    property QtObject converter: QtObject {
        signal signalCreateNewFormatMsgClose(string id)

        function setConverterGlobalFormat(id) {
            root.settings.converterGlobalId = id
        }

        function setConvertingListTaskFormat(taskId, id) {
            console.log("task", taskId, "has the preset", id)
        }

        function openConvertionParametersMsgBox(info) {
            root.frame.info = info
            root.dialogAsked()
        }

        function openSelectFormatMsgBox(info) {
            root.messageAsked(info.showText)
        }

        /*! Whether a task uses the preset, which then can't be deleted. */
        function checkFormatUsed(id) {
            return false
        }
    }

    /*! O_EditorProxy: the other page; this host has only one. */
    property QtObject editor: QtObject {
        function setEditorGlobalFormat(id) {}
        function setEditingListTaskFormat(taskId, id) {}
        function checkFormatUsed(id) {
            return false
        }
    }

    /*! O_Setting: the presets in use. */
    property QtObject settings: QtObject {
        property string converterGlobalId: "Video_MP4_001"
        property string editorGlobalId: "Video_MP4_001"
    }

    /*! O_Frame: the window around the dialog. */
    property QtObject frame: QtObject {
        property var info: null

        /*! For a dialog in a window of its own; a popup follows its content's size anyway. */
        function resizeWinSize(width, height) {}

        /*! \a id is the preset that the dialog saved, if any. */
        function cancelClicked(id) {
            root.dialogClosed()
            if (id) {
                root.converter.signalCreateNewFormatMsgClose(id)
            }
        }
    }

    property QtObject toolFun: QtObject {
        readonly property bool isMac: Qt.platform.os === "osx"

        function tr(text) {
            return text
        }

        function timerOnce(ms, run) {
            const timer = root.timer.createObject(root, { "interval": ms })
            timer.triggered.connect(function () {
                run()
                timer.destroy()
            })
        }
    }

    property Component timer: Component {
        Timer {
            running: true
        }
    }

    property QtObject themeManager: QtObject {
        property QtObject curTheme: QtObject {
            property color basics_gradeTone1: "#FFFFFF"
            property color basics_gradeTone2: "#FAFAFC"
            property color basics_gradeTone7: "#F3F1FD"
            property color secondary_gradeTone3: "#C9BFFF"
            property color secondary_gradeTone4: "#EFECFB"
            property color font_color_grade2: "#333333"
            property color font_color_grade3: "#6A52FF"
            property int radius_1: 4
            property int radius_7: 17
        }
    }
}
