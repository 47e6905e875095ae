import QtQuick 2.15

/*! A frame of dashes, as around places to drop something. */
Canvas {
    id: root

    property real radius: 8
    property color color: "black"

    onColorChanged: root.requestPaint()
    onPaint: {
        const context = root.getContext("2d")
        context.reset()
        context.strokeStyle = root.color
        context.lineWidth = 2
        context.setLineDash([4, 4])
        context.roundedRect(1, 1, root.width - 2, root.height - 2, root.radius, root.radius)
        context.stroke()
    }
}
