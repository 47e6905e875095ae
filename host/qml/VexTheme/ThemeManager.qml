import QtQuick 2.15
import VexTheme 1.0

/*! The theme as the library's screens reach it. */
QtObject {
    readonly property QtObject curTheme: Theme.light
}
