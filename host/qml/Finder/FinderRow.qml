import QtQuick 2.15
import Controls 1.0
import Converter 1.0
import Public 1.0
import VexTheme 1.0
import VexWindow 1.0

/*! A preset in the list of those found. */
Rectangle {
    id: root

    required property int index
    required property string presetId
    required property string title
    required property string format
    required property string icon
    required property string details
    required property string why
    required property bool isFavorite
    required property bool isOwn
    required property string problem
    required property string group

    required property bool isCurrent
    /*! Only among the user's own, in their order, a row can be dragged. */
    readonly property bool canMove: root.isOwn && root.group === ToolFun.tr("My presets")
    readonly property bool isUsable: root.problem === ""
    readonly property string nearest: root.isCurrent && !root.isUsable
                                      ? PresetFinder.nearestTo(root.presetId) : ""
    /*! All that the row says, for those who can't see it. */
    readonly property string spoken: root.title + ", " + root.format + ", " + root.details
                                     + (root.why === "" ? "" : ", " + root.why)
                                     + (root.problem === "" ? "" : ", " + root.problem)

    signal pressed()
    signal used()
    signal nearestUsed()
    signal menuWanted(Item button)
    signal dragBegun()
    /*! The row's grip is dragged over this height of the list's content. */
    signal dragged(real y)
    signal dropped()

    implicitHeight: words.implicitHeight + 2 * 7
    radius: Theme.radius_1
    color: root.isCurrent ? Theme.accentPale : mouse.containsMouse ? Theme.hover
                                                                   : Theme.basics_gradeTone1
    Accessible.role: Accessible.ListItem
    Accessible.name: root.spoken
    Accessible.selectable: true
    Accessible.selected: root.isCurrent
    Accessible.onPressAction: root.used()

    MouseArea {
        id: mouse

        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPressed: root.pressed()
        onClicked: function (event) {
            if (event.button === Qt.RightButton) {
                root.menuWanted(menuButton)
            }
        }
        onDoubleClicked: function (event) {
            if (event.button === Qt.LeftButton) {
                root.used()
            }
        }
    }

    TaskGrip {
        height: parent.height
        visible: root.canMove
        onPressed: {
            root.pressed()
            root.dragBegun()
        }
        onDragged: function (place) { root.dragged(root.y + place.y) }
        onDropped: root.dropped()
    }

    VEXIcon {
        id: picture

        anchors {
            left: parent.left
            leftMargin: 18
            top: parent.top
            topMargin: 10
        }
        size: 20
        source: root.icon
        opacity: root.isUsable ? 1 : Theme.disabledOpacity
    }

    component Words: VEXLabel {
        width: words.width
        font.pixelSize: Theme.smallText
        color: Theme.font_color_grade4
        Accessible.ignored: true
    }

    Column {
        id: words

        anchors {
            left: picture.right
            leftMargin: 10
            right: buttons.left
            rightMargin: Theme.spacing
            verticalCenter: parent.verticalCenter
        }
        spacing: 1

        Row {
            spacing: Theme.spacing

            Words {
                id: name

                width: Math.min(implicitWidth, words.width - formatName.width - parent.spacing)
                text: root.title
                font.pixelSize: Theme.text
                font.weight: Font.DemiBold
                color: root.isUsable ? Theme.font_color_grade1 : Theme.font_color_grade4
            }

            Words {
                id: formatName

                width: Math.min(implicitWidth, words.width / 2)
                height: name.height
                text: ToolFun.joined([root.format, root.isOwn ? ToolFun.tr("custom preset") : ""])
            }
        }

        Words {
            text: root.details
            elide: Text.ElideNone
            wrapMode: Text.Wrap
        }

        Words {
            visible: root.why !== ""
            text: ToolFun.tr("Found by: %1").arg(root.why)
            color: Theme.accentText
        }

        Words {
            visible: !root.isUsable
            text: ToolFun.tr("Can’t be used: %1").arg(root.problem)
            elide: Text.ElideNone
            wrapMode: Text.WordWrap
            color: Theme.danger
        }

        VEXButton {
            implicitHeight: 28
            leftPadding: Theme.spacing
            rightPadding: Theme.spacing
            width: Math.min(implicitWidth, words.width)
            visible: root.nearest !== ""
            focusPolicy: Qt.TabFocus
            font.pixelSize: Theme.smallText
            text: visible ? ToolFun.tr("Use %1").arg(PresetFinder.caption(root.nearest)) : ""
            onClicked: root.nearestUsed()
        }
    }

    Row {
        id: buttons

        anchors {
            right: parent.right
            rightMargin: 10
            verticalCenter: parent.verticalCenter
        }
        spacing: 4

        component RowButton: VEXImageButton {
            width: 28
            height: 28
            iconSize: 18
            // Tab only reaches the buttons of the current row.
            focusPolicy: root.isCurrent ? Qt.TabFocus : Qt.NoFocus
        }

        RowButton {
            iconSource: root.isFavorite ? "qrc:/window/images/star_on.svg"
                                        : "qrc:/window/images/star.svg"
            Accessible.name: root.isFavorite ? ToolFun.tr("Remove from the favorites")
                                             : ToolFun.tr("Add to the favorites")
            onClicked: PresetActions.setFavorite(root.presetId, !root.isFavorite)
        }

        RowButton {
            id: menuButton

            iconSource: "qrc:/window/images/more.svg"
            Accessible.role: Accessible.ButtonMenu
            Accessible.name: ToolFun.tr("More about %1").arg(root.title)
            onClicked: root.menuWanted(menuButton)
        }
    }
}
