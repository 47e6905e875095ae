import QtQuick 2.15
import QtQuick.Controls 2.5

TextField {
    property bool isCostomCursor: false

    padding: 0
    background: null
}
