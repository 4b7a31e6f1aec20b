// The 13 by 13 grid of starting hands: pairs on the diagonal, suited hands above it, offsuit hands below. It
// paints ranges on the Setup page and shows strategies, one action colour per segment, on the Results page.
import QtQuick
import Kelvane
import "RangeText.js" as RangeText

Item {
    id: root

    property var theme: null
    property var weights: ({})
    property var colors: ({})
    property string weightDisplayMode: "horizontalSpan"
    property var actionTypes: []
    property var actionProbs: ({})
    property bool editable: false
    property bool selectable: false
    property bool showLabels: true
    property int cellSize: 32
    property int cellSpacing: 2

    readonly property int _gridSize: 13
    readonly property var _hands: RangeText.allHands()
    readonly property Theme _darkTheme: Theme {}
    readonly property var _theme: theme ? theme : _darkTheme
    readonly property real _accentAlpha: 0.8
    readonly property real _mixedOpacity: 0.85
    // Cells above this size get the larger label.
    readonly property int _smallLabelMaxCell: 28
    readonly property real _smallLabelPoints: 8
    readonly property real _largeLabelPoints: 9
    readonly property real _labelScale: 1.25
    readonly property real _labelPointSize: (cellSize > _smallLabelMaxCell ? _largeLabelPoints : _smallLabelPoints)
                                            * _labelScale
    // One colour per action key, worked out once for all 169 cells.
    readonly property var _keyColors: _colorsOfKeys(actionTypes)
    property int _hoveredIndex: -1
    property bool _dragging: false
    property bool _dragDesiredOn: false
    property int _lastIndex: -1

    signal handClicked(string hand, real currentWeight)
    signal handPainted(string hand, bool desiredOn, real currentWeight)
    signal handHovered(string hand, real weight)

    function handAt(row, col) {
        return RangeText.handAt(row, col)
    }

    function _step() {
        return cellSize + cellSpacing
    }

    // The cell under a point, or -1 outside the grid and in the gaps, so that a drag does not flicker between cells.
    function indexAt(x, y) {
        const step = _step()
        const col = Math.floor(x / step)
        const row = Math.floor(y / step)
        if (x < 0 || y < 0 || col >= _gridSize || row >= _gridSize)
            return -1
        if (x - col * step >= cellSize || y - row * step >= cellSize)
            return -1
        return row * _gridSize + col
    }

    function weightOf(hand) {
        const weight = weights ? Number(weights[hand]) : 0
        return isNaN(weight) ? 0 : weight
    }

    function colorFor(hand, w) {
        if (!(w > 0))
            return "transparent"
        if (colors && colors[hand] !== undefined)
            return colors[hand]
        return _theme.withOpacity(_theme.accent, _accentAlpha * w)
    }

    function _weight01(hand) {
        return Math.max(0, Math.min(1, weightOf(hand)))
    }

    // The hand's action probabilities when they line up with the action list, else null.
    function _mixedProbs(hand) {
        if (!actionTypes || actionTypes.length === 0 || !actionProbs)
            return null
        const probs = actionProbs[hand]
        return probs && probs.length === actionTypes.length ? probs : null
    }

    function _colorsOfKeys(keys) {
        const colors = []
        for (let i = 0; keys && i < keys.length; ++i)
            colors.push(_theme.actionColor(keys[i]))
        return colors
    }

    function _segments(hand) {
        const probs = _mixedProbs(hand)
        if (!probs)
            return [{start: 0, size: 1, color: colorFor(hand, 1.0)}]
        const segments = []
        let start = 0
        for (let i = 0; i < probs.length; ++i) {
            const p = Number(probs[i])
            const size = i === probs.length - 1 ? Math.max(0, 1 - start) : Math.max(0, Math.min(1, p))
            segments.push({start: start, size: size, color: _keyColors[i]})
            if (p >= 0)
                start += p
        }
        return segments
    }

    function _baseColor(index) {
        const row = Math.floor(index / _gridSize)
        const col = index % _gridSize
        if (row === col)
            return _theme.surface3
        return row < col ? _theme.surface2 : _theme.surface
    }

    function _hover(index) {
        if (index === _hoveredIndex)
            return
        _hoveredIndex = index
        if (index >= 0)
            handHovered(_hands[index], weightOf(_hands[index]))
    }

    // Emits a paint for a cell whose state differs from the drag's, once per cell entered.
    function _paint(index) {
        if (index < 0 || index === _lastIndex)
            return
        _lastIndex = index
        const hand = _hands[index]
        const weight = weightOf(hand)
        if ((weight > 0) !== _dragDesiredOn)
            handPainted(hand, _dragDesiredOn, weight)
    }

    function _startDrag(index) {
        if (!editable || index < 0)
            return
        _dragging = true
        _dragDesiredOn = !(weightOf(_hands[index]) > 0)
        _lastIndex = -1
        _paint(index)
    }

    function _click(index) {
        if (editable || !selectable || index < 0)
            return
        handClicked(_hands[index], weightOf(_hands[index]))
    }

    implicitWidth: _step() * _gridSize - cellSpacing
    implicitHeight: implicitWidth

    Repeater {
        model: root._hands.length

        HandMatrixCell {
            required property int index
            readonly property string _hand: root._hands[index]

            objectName: "cell_" + _hand
            x: (index % root._gridSize) * root._step()
            y: Math.floor(index / root._gridSize) * root._step()
            width: root.cellSize
            height: root.cellSize
            theme: root._theme
            hand: _hand
            baseColor: root._baseColor(index)
            weight: root._weight01(_hand)
            verticalFill: root.weightDisplayMode === "verticalFill"
            segments: root._segments(_hand)
            segmentOpacity: root._mixedProbs(_hand) ? root._mixedOpacity : 1.0
            labelVisible: root.showLabels || weight > 0
            labelPointSize: root._labelPointSize
            hovered: index === root._hoveredIndex
        }
    }

    MouseArea {
        id: pointer
        objectName: "pointer"
        anchors.fill: parent
        hoverEnabled: true
        // A flickable around the matrix must not take over a paint stroke.
        preventStealing: true
        cursorShape: root.editable || root.selectable ? Qt.PointingHandCursor : Qt.ArrowCursor

        onPressed: mouse => root._startDrag(root.indexAt(mouse.x, mouse.y))
        onPositionChanged: mouse => {
            const index = root.indexAt(mouse.x, mouse.y)
            root._hover(index)
            if (root._dragging)
                root._paint(index)
        }
        // Entering reports no position change, so the first cell under the pointer is looked up here.
        onEntered: root._hover(root.indexAt(mouseX, mouseY))
        onReleased: root._dragging = false
        onCanceled: root._dragging = false
        onExited: root._hover(-1)
        onClicked: mouse => root._click(root.indexAt(mouse.x, mouse.y))
    }
}
