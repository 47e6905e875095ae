import QtQuick 2.15
import QtQuick.Controls 2.5
import VexTheme 1.0

/*! A menu as wide as its widest entry. */
Menu {
    id: root

    function widest() {
        let width = 160
        for (let i = 0; i < root.count; ++i) {
            const entry = root.itemAt(i)
            width = Math.max(width, entry.isOffered ? entry.implicitWidth : 0)
        }
        return width
    }

    onAboutToShow: root.width = root.widest() + root.leftPadding + root.rightPadding
    onOpened: root.width = root.widest() + root.leftPadding + root.rightPadding // entries of a menu that is closed aren't visible
    padding: 4
    delegate: MenuEntry {}

    background: Rectangle {
        radius: Theme.radius_1
        color: Theme.basics_gradeTone1
        border.width: 1
        border.color: Theme.frame
    }
}
