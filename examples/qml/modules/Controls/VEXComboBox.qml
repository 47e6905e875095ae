import QtQuick 2.15
import QtQuick.Controls 2.12

ComboBox {
    id: root

    function transText(text) {
        return text
    }

    displayText: root.currentIndex < 0 ? "" : root.transText(root.currentValue)
    delegate: ItemDelegate {
        required property var modelData
        required property int index

        width: root.width
        text: root.transText(modelData)
        highlighted: root.highlightedIndex === index
    }
}
