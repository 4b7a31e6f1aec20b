// One offered accent colour: a round swatch ringed in the focus colour while it is the accent in force, with
// its name and hex value as a tooltip.
import QtQuick
import QtQuick.Controls

AbstractButton {
    id: swatch

    property var theme: null
    property var type: null
    property string label: ""
    property string hex: ""

    readonly property bool current: Qt.colorEqual(theme.accent, hex)
    readonly property string toolTipText: label + " " + hex
    readonly property int _size: 28
    readonly property int _ringWidth: 2
    // The gap between the ring and the colour inside it.
    readonly property int _inset: 4
    readonly property real _hoverScale: 1.1

    implicitWidth: _size
    implicitHeight: _size
    hoverEnabled: true
    scale: hovered ? _hoverScale : 1.0
    Accessible.name: label

    Behavior on scale {
        NumberAnimation { duration: swatch.theme.durationFast }
    }

    background: Rectangle {
        objectName: "swatchRing"
        radius: width / 2
        color: "transparent"
        border.color: swatch.current ? swatch.theme.strokeFocus : swatch.theme.stroke
        border.width: swatch.current ? swatch._ringWidth : 1

        Rectangle {
            objectName: "swatchFill"
            anchors.fill: parent
            anchors.margins: swatch._inset
            radius: width / 2
            color: swatch.hex
        }
    }

    contentItem: Item {}

    ToolTip {
        objectName: "swatchToolTip"
        visible: swatch.hovered
        delay: swatch.theme.durationNormal
        text: swatch.toolTipText

        contentItem: Row {
            spacing: swatch.theme.spaceSm

            Text {
                text: swatch.label
                color: swatch.theme.text
                font.family: swatch.theme.fontFamily
                font.pixelSize: swatch.type.labelMd
                font.weight: swatch.type.weightSemibold
            }

            Text {
                text: swatch.hex
                color: swatch.theme.textMuted
                font.family: swatch.theme.fontMono
                font.pixelSize: swatch.type.labelMd
            }
        }

        background: Rectangle {
            radius: swatch.theme.radiusXs
            color: swatch.theme.surface3
            border.color: swatch.theme.stroke
        }
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
