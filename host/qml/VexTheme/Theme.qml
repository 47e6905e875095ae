pragma Singleton
import QtQuick 2.15

/*! The theme of the window. The library's screens have colours of their own that need a light one. */
ThemeColours {
    id: root

    /*! Whether things move by themselves, such as an endless progress bar. */
    property bool isMoving: true
    /*! The item of the library's screen in the window; those in dialogs say so themselves. */
    property Item lightScreen: null
    readonly property ThemeColours light: ThemeColours {}

    /*! The theme where \a item stands. */
    function around(item) {
        for (let outer = item.parent; outer; outer = outer.parent) {
            if (outer === root.lightScreen) {
                return root.light
            }
            if (outer.theme) {
                return outer.theme
            }
        }
        return root
    }
}
