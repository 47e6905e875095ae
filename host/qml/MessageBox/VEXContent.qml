import QtQuick 2.15
import VexTheme 1.0
import VexWindow 1.0

/*! The framed ground of a dialog. */
Rectangle {
    id: root

    /*! The window that the dialog is shown in. */
    required property DialogFrame frame
    /*! Which its controls have, too. */
    readonly property ThemeColours theme: root.frame.isLight ? Theme.light : Theme

    color: root.theme.basics_gradeTone1
    radius: Theme.radius_2
    border.width: 1
    border.color: root.theme.frame
}
