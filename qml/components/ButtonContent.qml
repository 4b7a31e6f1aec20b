// The inside of the themed buttons: a spinner or an icon, then the label, centred as one group.
// A hidden icon takes no room, so a button without one has its label exactly in the middle.
import QtQuick

Item {
    id: root

    property string text: ""
    property string iconName: ""
    property string iconText: ""
    property color color: "white"
    property bool loading: false

    readonly property int _labelSize: 14
    readonly property int _iconSize: 16
    readonly property int _spinnerSize: 14
    readonly property int _spinnerLineWidth: 2
    readonly property int _spinnerTurnDuration: 1000
    // The arc leaves a quarter of the circle open, so that its turning is visible.
    readonly property real _spinnerSweep: 1.5 * Math.PI

    implicitWidth: row.implicitWidth
    implicitHeight: Math.max(row.implicitHeight, _iconSize)

    function _paintSpinner(canvas) {
        const ctx = canvas.getContext("2d")
        const half = canvas.width / 2
        ctx.reset()
        ctx.lineWidth = _spinnerLineWidth
        ctx.lineCap = "round"
        ctx.strokeStyle = color
        ctx.beginPath()
        ctx.arc(half, half, half - _spinnerLineWidth, 0, _spinnerSweep, false)
        ctx.stroke()
    }

    onColorChanged: spinner.requestPaint()

    Row {
        id: row
        // Placed by hand: centring anchors snap to whole pixels and would move the label off the exact centre.
        x: (root.width - width) / 2
        y: (root.height - height) / 2
        spacing: 8

        Canvas {
            id: spinner
            objectName: "spinner"
            anchors.verticalCenter: parent.verticalCenter
            width: root._spinnerSize
            height: root._spinnerSize
            visible: root.loading
            onPaint: root._paintSpinner(spinner)

            RotationAnimator on rotation {
                from: 0
                to: 360
                duration: root._spinnerTurnDuration
                loops: Animation.Infinite
                running: spinner.visible
            }
        }

        Icon {
            objectName: "icon"
            anchors.verticalCenter: parent.verticalCenter
            visible: !root.loading && root.iconName !== ""
            name: root.iconName
            size: root._iconSize
            color: root.color
        }

        Text {
            objectName: "iconText"
            anchors.verticalCenter: parent.verticalCenter
            visible: !root.loading && root.iconName === "" && root.iconText !== ""
            text: root.iconText
            color: root.color
            font.pixelSize: root._labelSize
        }

        Text {
            objectName: "label"
            anchors.verticalCenter: parent.verticalCenter
            visible: root.text !== ""
            text: root.text
            color: root.color
            font.pixelSize: root._labelSize
            font.weight: Font.DemiBold
        }
    }
}
