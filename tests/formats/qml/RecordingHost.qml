import QtQuick 2.15

/*! The host's context objects, which record all calls in one list. */
QtObject {
    id: root

    /*! Each call as [name, arguments ...]. */
    property var calls: []
    property var timers: []
    property var usedByConverter: []
    property var usedByEditor: []
    /*! The prefix of translated text. */
    property string mark: "~"
    readonly property var dpi: function (size) {
        return 2 * size
    }

    function record(name, parameters) {
        root.calls.push([name].concat(Array.prototype.slice.call(parameters)))
    }

    function takeCalls() {
        return root.calls.splice(0)
    }

    /*! Fires all timers and returns their times in ms. */
    function elapse() {
        return root.timers.splice(0).map(function (timer) {
            timer.run()
            return timer.ms
        })
    }

    function publish() {
        bench.publish("O_ConverterProxy", root.converter)
        bench.publish("O_EditorProxy", root.editor)
        bench.publish("O_Setting", root.settings)
        bench.publish("ToolFun", root.toolFun)
        bench.publish("VexThemeMgr", root.themeManager)
        bench.publish("O_Frame", root.frame)
        bench.publish("dpi", root.dpi)
    }

    property QtObject converter: QtObject {
        signal signalCreateNewFormatMsgClose(string id)

        function setConverterGlobalFormat() {
            root.record("converter.setConverterGlobalFormat", arguments)
        }

        function setConvertingListTaskFormat() {
            root.record("converter.setConvertingListTaskFormat", arguments)
        }

        function openConvertionParametersMsgBox() {
            root.record("converter.openConvertionParametersMsgBox", arguments)
        }

        function openSelectFormatMsgBox() {
            root.record("converter.openSelectFormatMsgBox", arguments)
        }

        function checkFormatUsed(id) {
            return root.usedByConverter.includes(id)
        }
    }

    property QtObject editor: QtObject {
        function setEditorGlobalFormat() {
            root.record("editor.setEditorGlobalFormat", arguments)
        }

        function setEditingListTaskFormat() {
            root.record("editor.setEditingListTaskFormat", arguments)
        }

        function checkFormatUsed(id) {
            return root.usedByEditor.includes(id)
        }
    }

    property QtObject settings: QtObject {
        property string converterGlobalId
        property string editorGlobalId
    }

    property QtObject toolFun: QtObject {
        property bool isMac: false

        function tr(key) {
            return root.mark + key
        }

        function timerOnce(ms, run) {
            root.timers.push({ "ms": ms, "run": run })
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

    property QtObject frame: QtObject {
        property var info: null

        function resizeWinSize() {
            root.record("frame.resizeWinSize", arguments)
        }

        function cancelClicked() {
            root.record("frame.cancelClicked", arguments)
        }
    }
}
