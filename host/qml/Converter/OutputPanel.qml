import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import VexTheme 1.0
import VexWindow 1.0

/*! How a page's results are called, and what happens to names in use. */
T.Popup {
    id: root

    required property PageProxy page

    width: 400
    height: fields.implicitHeight + 2 * root.padding
    padding: Theme.margin
    margins: Theme.spacing
    focus: true
    closePolicy: T.Popup.CloseOnPressOutside | T.Popup.CloseOnEscape
    onAboutToShow: fields.renew()
    onOpened: fields.nameField.forceActiveFocus(Qt.PopupFocusReason)

    background: Rectangle {
        radius: Theme.radius_2
        color: Theme.basics_gradeTone1
        border.width: 1
        border.color: Theme.frame
    }

    OutputFields {
        id: fields

        width: root.availableWidth
        output: root.page.output
        page: root.page
        Accessible.role: Accessible.Dialog
        Accessible.name: ToolFun.tr("Names of the results")
    }
}
