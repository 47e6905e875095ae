import QtQuick 2.15

TextInput {
    property bool isSearch: true
    property bool isCostomCursor: false
    property int cursorWidth: 0
    property int cursorHeight: 0
}
