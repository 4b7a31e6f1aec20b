// One square of the hand matrix: the base, the weight drawn as a masked fill or as action segments, the label.
import QtQuick

Item {
    id: cell

    property var theme: null
    property string hand: ""
    property color baseColor: "transparent"
    // Already clamped to 0..1.
    property real weight: 0
    property bool verticalFill: false
    // Left-to-right parts of the fill, each {start, size, color} as fractions of the mask's width.
    property var segments: []
    property real segmentOpacity: 1.0
    property bool labelVisible: true
    property real labelPointSize: 10
    property bool hovered: false

    readonly property int _borderWidth: hovered ? 2 : 1
    readonly property real _hoverScale: 1.1
    readonly property int _hoverDuration: 80
    readonly property real _dimLabelOpacity: 0.6
    readonly property real _minimumLabelPoints: 6
    // The fill stays inside the border, so a filled cell keeps its outline and its hover ring.
    readonly property real _innerWidth: width - 2 * _borderWidth
    readonly property real _innerHeight: height - 2 * _borderWidth

    scale: hovered ? _hoverScale : 1.0
    z: hovered ? 1 : 0

    Behavior on scale {
        NumberAnimation { duration: cell._hoverDuration }
    }

    Rectangle {
        anchors.fill: parent
        radius: cell.theme.radiusXs
        color: cell.baseColor
        border.color: cell.hovered ? cell.theme.strokeFocus : cell.theme.strokeLight
        border.width: cell._borderWidth
    }

    // The weight is the share of the cell inside this mask: from the left, or from the bottom when filling up.
    Item {
        id: mask
        objectName: "mask"
        visible: cell.weight > 0
        clip: true
        x: cell._borderWidth
        y: cell._borderWidth + (cell.verticalFill ? cell._innerHeight * (1 - cell.weight) : 0)
        width: cell._innerWidth * (cell.verticalFill ? 1 : cell.weight)
        height: cell._innerHeight * (cell.verticalFill ? cell.weight : 1)

        // Counted rather than given the list itself, so that new weights or probabilities update the segments in
        // place instead of rebuilding them.
        Repeater {
            model: cell.segments.length

            // Each segment clips a whole rounded cell shape, so the outer segments keep the cell's corners.
            Item {
                id: segment
                objectName: "segment"
                required property int index
                readonly property var part: cell.segments[index]
                clip: true
                x: part.start * mask.width
                width: part.size * mask.width
                height: mask.height

                Rectangle {
                    x: cell._borderWidth - mask.x - segment.x
                    y: cell._borderWidth - mask.y
                    width: cell._innerWidth
                    height: cell._innerHeight
                    radius: Math.max(0, cell.theme.radiusXs - cell._borderWidth)
                    color: segment.part.color
                    opacity: cell.segmentOpacity
                }
            }
        }
    }

    // The point size is the largest the label takes; a wider fall-back font shrinks it to stay inside the cell.
    // Over a fill, a rim in the cell's base colour keeps the label readable on every action colour.
    Text {
        objectName: "label"
        anchors.centerIn: parent
        width: cell._innerWidth
        horizontalAlignment: Text.AlignHCenter
        visible: cell.labelVisible
        text: cell.hand
        color: cell.theme.text
        style: cell.weight > 0 ? Text.Outline : Text.Normal
        styleColor: cell.baseColor
        opacity: cell.weight > 0 ? 1.0 : cell._dimLabelOpacity
        font.family: cell.theme.fontMono
        font.pointSize: cell.labelPointSize
        fontSizeMode: Text.HorizontalFit
        minimumPointSize: cell._minimumLabelPoints
        renderType: Text.NativeRendering
    }
}
