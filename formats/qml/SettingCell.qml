import QtQuick 2.15
import Controls 1.0
import "."

/*! A labelled box with the values that the preset offers for one setting. */
Item {
    id: root

    required property var dialog
    required property string label
    required property var options
    required property var chosen
    /*! Whether "30" and 30 are two different options. */
    property bool strict: false
    /*! The options that mean the source's own value. */
    required property var smartFit
    property string unit: ""
    /*! How far the label may extend to the left on one line. */
    property int labelRoom: 100

    readonly property alias currentValue: box.currentValue
    readonly property alias count: box.count
    readonly property int chosenIndex: Math.max(0, root.options.findIndex(function (option) {
        return root.strict ? option === root.chosen : option == root.chosen
    }))

    function find(text) {
        return box.find(text)
    }

    function select(index) {
        box.currentIndex = index
    }

    width: 243
    height: 32
    onChosenIndexChanged: root.select(root.chosenIndex)

    TextMetrics {
        id: oneLine

        text: root.label
        font.pixelSize: ScreenStyle.smallText
    }

    Text {
        readonly property bool tooWide: oneLine.advanceWidth > root.labelRoom

        width: 62
        height: parent.height
        text: root.label
        textFormat: Text.PlainText
        wrapMode: tooWide ? Text.WordWrap : Text.NoWrap
        horizontalAlignment: Text.AlignRight
        verticalAlignment: Text.AlignVCenter
        color: ScreenStyle.text
        font.pixelSize: tooWide ? 10 : ScreenStyle.smallText
    }

    VEXComboBox {
        id: box

        function transText(text) {
            return root.smartFit.includes(text) ? ToolFun.tr("Smart Fit") : text + root.unit
        }

        x: 70
        width: 170
        height: 32
        model: root.options
        Accessible.role: Accessible.ComboBox
        Accessible.name: root.label
        // A closed box would swallow Return.
        Keys.forwardTo: box.popup && box.popup.visible ? [] : [root.dialog]
        // A new list resets the box to its first entry.
        onModelChanged: root.select(root.chosenIndex)
        onActivated: root.dialog.editedChange()
    }
}
