import QtQuick 2.15
import VexTheme 1.0
import VexWindow 1.0

/*! The framed ground of a dialog. */
Rectangle {
    /*! The window that the dialog is shown in. */
    required property DialogFrame frame

    color: Theme.basics_gradeTone1
    radius: Theme.radius_2
    border.width: 1
    border.color: Theme.frame
}
