import QtQuick 2.15
import QtQuick.Controls 2.5

/*! Opens one screen after the other, draws them into the files and ends the program. */
QtObject {
    id: root

    required property var files
    required property Popup firstScreen
    required property Popup secondScreen

    /*! Draws the item of a screen that was just opened, once it is laid out. */
    function draw(item, file, next) {
        ToolFun.timerOnce(500, function () {
            item.grabToImage(function (result) {
                if (!result.saveToFile(file)) {
                    Qt.exit(1)
                }
                next()
            })
        })
    }

    property Connections pickerShown: Connections {
        target: root.firstScreen

        function onOpened() {
            root.draw(root.firstScreen.contentItem, root.files[0], function () {
                O_ConverterProxy.openConvertionParametersMsgBox({
                    "format": "video", "curclass": "MP4", "idIndex": "Video_MP4_001",
                    "listID": null, "openTheWay": true, "fromPAGE": "Converter",
                    "closeItem": null, "userDefine": false
                })
            })
        }
    }

    property Connections dialogShown: Connections {
        target: root.secondScreen

        function onOpened() {
            root.draw(root.secondScreen.contentItem.children[0], root.files[1], Qt.quit)
        }
    }

    // The window is shown when everything in it is complete.
    Component.onCompleted: Qt.callLater(root.firstScreen.open)
}
