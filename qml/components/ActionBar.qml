// A node's strategy as one horizontal bar, a coloured segment per action in proportion to its frequency, with an
// optional row of labels under it: the action's name, share, combos, equity and EV.
import QtQuick
import Kelvane

Item {
    id: root

    property var theme: null
    // Maps with name, actionType and frequency, and optionally color, combos, equity and ev. It may come from the
    // controller as a list that is not a script array, so it is only ever read by index.
    property var actions: []
    property bool showLabels: true
    property bool interactive: false
    // Index of the action to pick out; the others are dimmed. -1 for none.
    property int selectedAction: -1

    readonly property Theme _darkTheme: Theme {}
    readonly property var _theme: theme ? theme : _darkTheme
    readonly property Typography _type: Typography {}

    readonly property int _barOnlyHeight: 24
    readonly property int _labelsHeight: 16
    readonly property int _defaultWidth: 160
    // A segment narrower than this is a sliver and leaves the rounded end to its neighbour.
    readonly property real _minVisibleWidth: 1
    readonly property int _percentMinWidth: 35
    readonly property int _percentPadding: 8
    readonly property int _percentPixelSize: 10
    readonly property color _percentColor: Qt.rgba(1, 1, 1, 0.92)
    readonly property int _swatchSize: 10
    readonly property int _swatchRadius: 2
    readonly property int _labelSpacing: 14
    readonly property int _labelPartSpacing: 5
    // Combos closer than this to a whole number are shown without decimals.
    readonly property real _wholeTolerance: 1e-6
    readonly property real _dimmedOpacity: 0.45
    readonly property real _hoverLighten: 1.15

    // Shares, pixel edges and rounded ends in one value, so that the segments never see one of them updated and
    // another not yet.
    readonly property var _geometry: _barGeometry(_normalizedFrequencies(actions), width)
    property int _hoveredIndex: -1

    signal actionClicked(int index, string name)
    // The frequency is the normalised share that the bar shows.
    signal actionHovered(int index, string name, real frequency)

    function _count(list) {
        return list ? list.length : 0
    }

    function _entry(index) {
        return index >= 0 && index < _count(actions) ? actions[index] : null
    }

    function _present(value) {
        return value !== undefined && value !== null && String(value) !== ""
    }

    // Missing values are not numbers, so that they show as a dash rather than as zero.
    function _number(value) {
        return _present(value) ? Number(value) : NaN
    }

    // Non-negative shares of the sum, each at most 1, so that the bar fills even when the inputs do not add up.
    function _normalizedFrequencies(list) {
        const raw = []
        let sum = 0
        for (let i = 0; i < _count(list); ++i) {
            const frequency = list[i] ? _number(list[i].frequency) : NaN
            const value = isFinite(frequency) && frequency > 0 ? frequency : 0
            raw.push(value)
            sum += value
        }
        const fractions = []
        for (let i = 0; i < raw.length; ++i)
            fractions.push(sum > 0 ? Math.min(1, raw[i] / sum) : 0)
        return fractions
    }

    function _segmentWidths(fractions, barWidth) {
        const widths = []
        for (let i = 0; i < fractions.length; ++i)
            widths.push(fractions[i] * barWidth)
        return widths
    }

    // Segment borders on whole pixels, so that neighbours meet without a seam; segment i spans edges i to i + 1.
    function _segmentEdges(fractions, barWidth) {
        const edges = [0]
        let cumulative = 0
        for (let i = 0; i < fractions.length; ++i) {
            cumulative = Math.min(1, cumulative + fractions[i])
            edges.push(Math.round(cumulative * barWidth))
        }
        return edges
    }

    function _barGeometry(fractions, barWidth) {
        return {
            fractions: fractions,
            edges: _segmentEdges(fractions, barWidth),
            ends: _visibleEnds(_segmentWidths(fractions, barWidth))
        }
    }

    function _firstIndex(widths, minimum, fromEnd) {
        for (let k = 0; k < widths.length; ++k) {
            const i = fromEnd ? widths.length - 1 - k : k
            if (minimum > 0 ? widths[i] >= minimum : widths[i] > 0)
                return i
        }
        return -1
    }

    // The segments that take the rounded ends: the outermost at least a pixel wide, else the outermost drawn at all.
    function _visibleEnds(widths) {
        let first = _firstIndex(widths, _minVisibleWidth, false)
        let last = _firstIndex(widths, _minVisibleWidth, true)
        if (first < 0) {
            first = _firstIndex(widths, 0, false)
            last = _firstIndex(widths, 0, true)
        }
        return {first: first, last: last}
    }

    function _segmentRadius(segmentWidth, barHeight) {
        return Math.max(0, Math.min(_theme.radiusSm, barHeight / 2, segmentWidth / 2))
    }

    function _colorFor(entry) {
        if (!entry)
            return _theme.actionColor(undefined)
        if (_present(entry.color))
            return entry.color
        if (_present(entry.actionType))
            return _theme.actionColor(entry.actionType)
        return _theme.actionColor(entry.name)
    }

    function _nameOf(index) {
        const entry = _entry(index)
        return entry && _present(entry.name) ? String(entry.name) : ""
    }

    function _formatPercent(fraction) {
        return Math.round(fraction * 100) + "%"
    }

    function _showsPercent(segmentWidth, fraction, textWidth) {
        return segmentWidth > _percentMinWidth && Math.round(fraction * 100) > 0
                && textWidth + _percentPadding <= segmentWidth
    }

    function _formatCombos(value) {
        const combos = _number(value)
        if (!isFinite(combos))
            return qsTr("—")
        const whole = Math.abs(combos - Math.round(combos)) <= _wholeTolerance
        return qsTr("%1 combos").arg(whole ? String(Math.round(combos)) : combos.toFixed(1))
    }

    function _formatEquity(value) {
        const equity = _number(value)
        return isFinite(equity) ? qsTr("%1% equity").arg((equity * 100).toFixed(1)) : qsTr("—")
    }

    function _formatEv(value) {
        const ev = _number(value)
        return isFinite(ev) ? qsTr("%1 EV").arg(ev.toFixed(2)) : qsTr("—")
    }

    // The segment under a point of the bar, or -1 between or beyond the segments.
    function _segmentAt(x) {
        const edges = _geometry.edges
        for (let i = 0; i + 1 < edges.length; ++i) {
            if (x >= edges[i] && x < edges[i + 1])
                return i
        }
        return -1
    }

    function _hover(index) {
        if (index === _hoveredIndex)
            return
        _hoveredIndex = index
        if (index >= 0)
            actionHovered(index, _nameOf(index), _geometry.fractions[index])
    }

    function _click(index) {
        if (interactive && index >= 0)
            actionClicked(index, _nameOf(index))
    }

    function _segmentColor(index) {
        const color = _colorFor(_entry(index))
        return interactive && index === _hoveredIndex ? Qt.lighter(color, _hoverLighten) : color
    }

    function _segmentOpacity(index) {
        return selectedAction >= 0 && index !== selectedAction ? _dimmedOpacity : 1.0
    }

    implicitWidth: _defaultWidth
    implicitHeight: showLabels ? _barOnlyHeight + _labelsHeight : _barOnlyHeight

    Item {
        id: bar
        objectName: "bar"
        width: root.width
        height: root.showLabels ? Math.max(0, root.height - root._labelsHeight) : root.height

        // Shows where there is nothing to share out: no actions, or none with a positive frequency.
        Rectangle {
            objectName: "track"
            anchors.fill: parent
            visible: root._geometry.ends.first < 0
            radius: root._segmentRadius(width, height)
            color: root._theme.surface3
        }

        Repeater {
            model: root._geometry.fractions.length

            Item {
                id: segment

                required property int index
                readonly property real fraction: root._geometry.fractions[index]
                readonly property bool roundedLeft: index === root._geometry.ends.first
                readonly property bool roundedRight: index === root._geometry.ends.last
                readonly property real cornerRadius: roundedLeft || roundedRight
                                                     ? root._segmentRadius(width, height) : 0

                objectName: "segment_" + index
                x: root._geometry.edges[index]
                width: root._geometry.edges[index + 1] - x
                height: bar.height
                visible: width > 0
                opacity: root._segmentOpacity(index)
                // A side without rounding is drawn past the segment's edge and cut off square.
                clip: shape.width > width

                Rectangle {
                    id: shape
                    objectName: "shape"
                    x: segment.roundedLeft ? 0 : -segment.cornerRadius
                    width: segment.width + (segment.roundedLeft ? 0 : segment.cornerRadius)
                           + (segment.roundedRight ? 0 : segment.cornerRadius)
                    height: segment.height
                    radius: segment.cornerRadius
                    color: root._segmentColor(segment.index)
                }

                Text {
                    objectName: "percent"
                    anchors.centerIn: parent
                    // A bar thinner than the text, such as a bucket row's, shows no figures at all.
                    visible: root._showsPercent(segment.width, segment.fraction, implicitWidth)
                             && implicitHeight <= segment.height
                    text: root._formatPercent(segment.fraction)
                    color: root._percentColor
                    font.family: root._theme.fontFamily
                    font.pixelSize: root._percentPixelSize
                    font.bold: true
                }
            }
        }

        MouseArea {
            objectName: "barArea"
            anchors.fill: parent
            enabled: root.interactive
            hoverEnabled: root.interactive
            cursorShape: root._hoveredIndex >= 0 ? Qt.PointingHandCursor : Qt.ArrowCursor
            onEntered: root._hover(root._segmentAt(mouseX))
            onPositionChanged: mouse => root._hover(root._segmentAt(mouse.x))
            onExited: root._hover(-1)
            onClicked: mouse => root._click(root._segmentAt(mouse.x))
        }
    }

    // One line; when it is wider than the bar it scrolls sideways rather than growing or cutting labels off.
    Flickable {
        objectName: "labels"
        y: bar.height
        width: root.width
        height: root._labelsHeight
        visible: root.showLabels
        clip: true
        contentWidth: labelsRow.implicitWidth
        contentHeight: height
        interactive: contentWidth > width
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.StopAtBounds

        Row {
            id: labelsRow
            height: root._labelsHeight
            spacing: root._labelSpacing

            Repeater {
                model: root.showLabels ? root._geometry.fractions.length : 0

                Row {
                    id: label

                    required property int index
                    readonly property var entry: root._entry(index)

                    objectName: "label_" + index
                    height: root._labelsHeight
                    spacing: root._labelPartSpacing

                    Rectangle {
                        objectName: "swatch"
                        anchors.verticalCenter: parent.verticalCenter
                        width: root._swatchSize
                        height: root._swatchSize
                        radius: root._swatchRadius
                        color: root._colorFor(label.entry)
                    }

                    Text {
                        objectName: "name"
                        anchors.verticalCenter: parent.verticalCenter
                        text: root._nameOf(label.index)
                        color: root._theme.text
                        font.family: root._theme.fontFamily
                        font.pixelSize: root._type.labelSm
                        font.weight: Font.DemiBold
                    }

                    Text {
                        objectName: "share"
                        anchors.verticalCenter: parent.verticalCenter
                        text: root._formatPercent(root._geometry.fractions[label.index])
                        color: root._theme.text
                        font.family: root._theme.fontFamily
                        font.pixelSize: root._type.labelSm
                    }

                    Text {
                        objectName: "combos"
                        anchors.verticalCenter: parent.verticalCenter
                        text: root._formatCombos(label.entry ? label.entry.combos : undefined)
                        color: root._theme.textMuted
                        font.family: root._theme.fontFamily
                        font.pixelSize: root._type.labelSm
                    }

                    Text {
                        objectName: "equity"
                        anchors.verticalCenter: parent.verticalCenter
                        text: root._formatEquity(label.entry ? label.entry.equity : undefined)
                        color: root._theme.textMuted
                        font.family: root._theme.fontFamily
                        font.pixelSize: root._type.labelSm
                    }

                    Text {
                        objectName: "ev"
                        anchors.verticalCenter: parent.verticalCenter
                        text: root._formatEv(label.entry ? label.entry.ev : undefined)
                        color: root._theme.textMuted
                        font.family: root._theme.fontFamily
                        font.pixelSize: root._type.labelSm
                    }
                }
            }
        }
    }
}
