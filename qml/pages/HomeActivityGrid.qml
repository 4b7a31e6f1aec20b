// A year of solves as a grid of days: one column per week, Monday at the top, months named above the week
// that holds their first day. A day's colour counts its solves on a fixed scale, so that a busy day never
// makes the ordinary ones fade; resting on a day shows its figures after a short delay.
import QtQuick
import QtQuick.Controls
import Kelvane

Item {
    id: grid

    property var theme: null
    property var type: null
    // Days in week-column order, seven to a week, as the controller lists them.
    property var days: []

    readonly property int daysPerWeek: 7
    readonly property int weekCount: _weeksIn(days.length)
    readonly property int cellSize: _cellSizeFor(width - _labelColumnWidth, weekCount)
    readonly property int drawnCellSize: _drawnSizeFor(cellSize)

    // The dark theme's tokens when the grid is shown without a theme.
    readonly property Theme _darkTheme: Theme {}
    readonly property var _theme: theme ? theme : _darkTheme
    readonly property Typography _defaultType: Typography {}
    readonly property var _type: type ? type : _defaultType
    readonly property int _labelColumnWidth: 34
    readonly property int _monthRowHeight: 18
    readonly property int _labelSize: _type.labelSm
    readonly property int _minCellSize: 14
    readonly property int _minDrawnSize: 10
    readonly property int _cellGap: 2
    readonly property real _singleSolveAlpha: 0.55
    readonly property real _borderDarkening: 0.35
    readonly property real _futureOpacity: 0.45
    readonly property int _tooltipDelay: 150
    readonly property int _tooltipGap: 4
    readonly property var _weekdayNames: [qsTranslate("HomePage", "Mon"), qsTranslate("HomePage", "Tue"),
        qsTranslate("HomePage", "Wed"), qsTranslate("HomePage", "Thu"), qsTranslate("HomePage", "Fri"),
        qsTranslate("HomePage", "Sat"), qsTranslate("HomePage", "Sun")]
    readonly property var _monthNames: [qsTranslate("HomePage", "Jan"), qsTranslate("HomePage", "Feb"),
        qsTranslate("HomePage", "Mar"), qsTranslate("HomePage", "Apr"), qsTranslate("HomePage", "May"),
        qsTranslate("HomePage", "Jun"), qsTranslate("HomePage", "Jul"), qsTranslate("HomePage", "Aug"),
        qsTranslate("HomePage", "Sep"), qsTranslate("HomePage", "Oct"), qsTranslate("HomePage", "Nov"),
        qsTranslate("HomePage", "Dec")]

    // The cell the pointer rests on, and the one whose tooltip shows once the delay has passed.
    property int _pendingIndex: -1
    property int _tipIndex: -1

    function _t(token) {
        return _theme[token]
    }

    function _weeksIn(length) {
        return Math.max(1, Math.floor(length / daysPerWeek))
    }

    function _cellSizeFor(gridWidth, weeks) {
        return Math.max(_minCellSize, Math.floor(gridWidth / Math.max(1, weeks)))
    }

    function _drawnSizeFor(size) {
        return Math.max(_minDrawnSize, size - _cellGap)
    }

    // "2026-03-01" as local midnight; anything else gives null.
    function _parseDate(text) {
        const parts = String(text).split("-").map(Number)
        if (parts.length !== 3 || !parts.every(Number.isFinite))
            return null
        return new Date(parts[0], parts[1] - 1, parts[2])
    }

    function _isDay(day) {
        return !!day && !day.isPadding
    }

    // The month's short name when one of the week's real days is the first of a month, else "".
    function _monthLabel(week) {
        for (let row = 0; row < daysPerWeek; ++row) {
            const day = days[week * daysPerWeek + row]
            const date = _isDay(day) ? _parseDate(day.date) : null
            if (date && date.getDate() === 1)
                return _monthNames[date.getMonth()]
        }
        return ""
    }

    function _solveLevel(solves) {
        const count = Math.round(Number(solves))
        return Number.isFinite(count) ? Math.max(0, count) : 0
    }

    function cellColor(solves) {
        const level = _solveLevel(solves)
        if (level <= 0)
            return _t("surface2")
        if (level === 1)
            return _theme.withOpacity(_theme.accent, _singleSolveAlpha)
        return level === 2 ? _theme.accentMuted : _theme.accent
    }

    function _fillColor(day) {
        return _isDay(day) ? cellColor(day.solves) : "transparent"
    }

    function _borderColor(day) {
        if (!_isDay(day))
            return "transparent"
        if (_solveLevel(day.solves) <= 0)
            return _t("stroke")
        return Qt.darker(_theme.accent, 1 + _borderDarkening)
    }

    function _tooltipText(day) {
        if (!_isDay(day))
            return ""
        const date = day.isFuture ? qsTranslate("HomePage", "%1%2").arg(day.date).arg(qsTranslate("HomePage", " (future)"))
                                  : String(day.date)
        return [date,
                qsTranslate("HomePage", "Solves: %1").arg(_solveLevel(day.solves)),
                qsTranslate("HomePage", "Avg iters: %1").arg(Math.round(Number(day.avgIterations) || 0)),
                qsTranslate("HomePage", "Avg expl: %1").arg((Number(day.avgExploitability) || 0).toFixed(4))].join("\n")
    }

    // The index into `days` under a point of the cell area, or -1 outside the days.
    function _indexAt(x, y) {
        if (x < 0 || y < 0)
            return -1
        const week = Math.floor(x / cellSize)
        const row = Math.floor(y / cellSize)
        if (week >= weekCount || row >= daysPerWeek)
            return -1
        const index = week * daysPerWeek + row
        return index < days.length ? index : -1
    }

    function _hover(index) {
        if (index === _pendingIndex)
            return
        _pendingIndex = index
        _tipIndex = -1
        if (_isDay(days[index]))
            tipDelay.restart()
        else
            tipDelay.stop()
    }

    function _cellX(index) {
        return Math.floor(index / daysPerWeek) * cellSize
    }

    function _cellY(index) {
        return (index % daysPerWeek) * cellSize
    }

    // The smallest cells, so that the width asked for never depends on the width given.
    implicitWidth: _labelColumnWidth + weekCount * _minCellSize
    implicitHeight: _monthRowHeight + daysPerWeek * cellSize

    onDaysChanged: _hover(-1)

    Timer {
        id: tipDelay

        interval: grid._tooltipDelay
        onTriggered: grid._tipIndex = grid._pendingIndex
    }

    Column {
        id: weekdayColumn

        x: 0
        y: grid._monthRowHeight
        width: grid._labelColumnWidth

        Repeater {
            model: grid._weekdayNames

            delegate: Text {
                required property string modelData

                width: grid._labelColumnWidth
                height: grid.cellSize
                verticalAlignment: Text.AlignVCenter
                text: modelData
                color: grid._t("textMuted")
                font.family: grid._t("fontFamily")
                font.pixelSize: grid._labelSize
            }
        }
    }

    Row {
        id: monthRow

        objectName: "monthRow"
        x: grid._labelColumnWidth
        height: grid._monthRowHeight

        Repeater {
            model: grid.weekCount

            delegate: Item {
                id: week

                required property int index

                width: grid.cellSize
                height: grid._monthRowHeight

                // Wider than its week on purpose: month labels stand at least four weeks apart.
                Text {
                    text: grid._monthLabel(week.index)
                    color: grid._t("textMuted")
                    font.family: grid._t("fontFamily")
                    font.pixelSize: grid._labelSize
                }
            }
        }
    }

    Item {
        id: cellArea

        objectName: "cellArea"
        x: grid._labelColumnWidth
        y: grid._monthRowHeight
        width: grid.weekCount * grid.cellSize
        height: grid.daysPerWeek * grid.cellSize

        Grid {
            flow: Grid.TopToBottom
            rows: grid.daysPerWeek

            Repeater {
                id: cells

                model: grid.days

                delegate: Item {
                    id: cell

                    required property var modelData
                    required property int index

                    width: grid.cellSize
                    height: grid.cellSize

                    Rectangle {
                        objectName: "dayCell" + cell.index
                        anchors.centerIn: parent
                        width: grid.drawnCellSize
                        height: grid.drawnCellSize
                        radius: grid._t("radiusXs")
                        color: grid._fillColor(cell.modelData)
                        border.color: grid._borderColor(cell.modelData)
                        border.width: 1
                        opacity: cell.modelData.isFuture ? grid._futureOpacity : 1.0
                    }
                }
            }
        }

        MouseArea {
            id: hoverArea

            anchors.fill: parent
            hoverEnabled: true
            acceptedButtons: Qt.NoButton
            // Entering reports no position change, and a pointer may come to rest on its first event.
            onEntered: grid._hover(grid._indexAt(hoverArea.mouseX, hoverArea.mouseY))
            onPositionChanged: mouse => grid._hover(grid._indexAt(mouse.x, mouse.y))
            onExited: grid._hover(-1)
        }

        ToolTip {
            id: tip

            objectName: "activityTooltip"
            visible: grid._tipIndex >= 0
            text: grid._tooltipText(grid.days[grid._tipIndex])
            x: grid._cellX(grid._tipIndex) + (grid.cellSize - width) / 2
            y: grid._cellY(grid._tipIndex) - height - grid._tooltipGap
            padding: grid._t("spaceSm")

            contentItem: Text {
                text: tip.text
                color: grid._t("text")
                font.family: grid._t("fontMono")
                font.pixelSize: grid._labelSize
                lineHeight: 1.2
            }

            background: Rectangle {
                color: grid._t("surface")
                border.color: grid._t("stroke")
                border.width: 1
                radius: grid._t("radiusSm")
            }
        }
    }
}
