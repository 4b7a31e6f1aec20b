// A circular progress gauge; indeterminate, it shows a turning arc and "..." instead of a figure.
import QtQuick

Item {
    id: root

    property var theme: null
    property real value: 0
    property real strokeWidth: 8
    property color trackColor: _t("surface3")
    property color progressColor: _t("accent")
    property bool showPercentage: true
    property bool indeterminate: false

    // Dark values used when the ring is shown without a theme.
    readonly property var _fallback: ({
        accent: "#3FB950",
        surface3: "#2D333B",
        text: "#F0F6FC"
    })
    // An indeterminate ring claims no progress.
    readonly property real _effectiveValue: indeterminate ? 0 : Math.max(0, Math.min(1, value))
    property real _animatedValue: _effectiveValue
    // While indeterminate, a quarter arc turns so that activity stays visible at value 0.
    readonly property real _indeterminateSweep: 0.25
    readonly property real _percentageSizeRatio: 0.22
    readonly property real _ellipsisSizeRatio: 0.18
    readonly property int _valueDuration: 300
    readonly property int _turnDuration: 1500

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    function _sweep() {
        return indeterminate ? _indeterminateSweep : _animatedValue
    }

    function _centreText() {
        return indeterminate ? qsTr("...") : Math.round(_animatedValue * 100) + "%"
    }

    function _paintCircle(canvas, color, fraction) {
        const ctx = canvas.getContext("2d")
        const centre = canvas.width / 2
        const radius = Math.max(0, centre - strokeWidth / 2)
        const top = -Math.PI / 2
        ctx.reset()
        if (fraction <= 0)
            return
        ctx.lineWidth = strokeWidth
        ctx.lineCap = "round"
        ctx.strokeStyle = color
        ctx.beginPath()
        ctx.arc(centre, centre, radius, top, top + 2 * Math.PI * fraction, false)
        ctx.stroke()
    }

    function _repaint() {
        track.requestPaint()
        arc.requestPaint()
    }

    implicitWidth: 100
    implicitHeight: 100

    Behavior on _animatedValue {
        NumberAnimation { duration: root._valueDuration; easing.type: Easing.OutCubic }
    }

    on_AnimatedValueChanged: arc.requestPaint()
    onIndeterminateChanged: _repaint()
    onStrokeWidthChanged: _repaint()
    onTrackColorChanged: track.requestPaint()
    onProgressColorChanged: arc.requestPaint()

    Canvas {
        id: track
        objectName: "track"
        anchors.centerIn: parent
        width: Math.min(root.width, root.height)
        height: width
        onPaint: root._paintCircle(track, root.trackColor, 1)
        onWidthChanged: requestPaint()
    }

    Canvas {
        id: arc
        objectName: "arc"
        anchors.centerIn: parent
        width: track.width
        height: width
        onPaint: root._paintCircle(arc, root.progressColor, root._sweep())
        onWidthChanged: requestPaint()

        RotationAnimator on rotation {
            objectName: "turning"
            from: 0
            to: 360
            duration: root._turnDuration
            loops: Animation.Infinite
            running: root.indeterminate && root.visible
            onRunningChanged: if (!running) arc.rotation = 0
        }
    }

    Text {
        objectName: "centre"
        anchors.centerIn: parent
        visible: root.showPercentage
        text: root._centreText()
        color: root._t("text")
        font.pixelSize: Math.max(1, track.width * (root.indeterminate ? root._ellipsisSizeRatio : root._percentageSizeRatio))
        font.bold: true
    }
}
