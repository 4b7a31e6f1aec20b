import QtQuick
import QtTest
import Kelvane

TestCase {
    id: testCase

    name: "HomeActivityGrid"
    when: windowShown
    // Hovering needs a visible tree; a test case is hidden by default.
    visible: true
    width: 1400
    height: 600

    // The fixed year used throughout: Monday 2025-11-24 to Sunday 2026-11-22, "today" Friday 2026-11-20.
    readonly property var yearStart: new Date(2025, 10, 24)
    readonly property string fixedToday: "2026-11-20"

    Theme {
        id: darkTheme
    }

    Theme {
        id: lightTheme

        dark: false
    }

    Typography {
        id: typography
    }

    Component {
        id: gridComponent

        HomeActivityGrid {
            type: typography
        }
    }

    function isoDate(date) {
        return Qt.formatDate(date, "yyyy-MM-dd")
    }

    // 52 weeks from yearStart, in the controller's order, with solves on the days named in `solvesByDate`.
    function yearOfDays(solvesByDate) {
        const days = []
        for (let i = 0; i < 364; ++i) {
            const date = new Date(yearStart.getFullYear(), yearStart.getMonth(), yearStart.getDate() + i)
            const iso = isoDate(date)
            const solves = (solvesByDate || {})[iso] || 0
            days.push({isPadding: false, date: iso, isFuture: iso > fixedToday, solves: solves,
                       avgIterations: solves > 0 ? 400 : 0.0, avgExploitability: solves > 0 ? 0.05 : 0.0})
        }
        return days
    }

    function makeGrid(properties) {
        const grid = createTemporaryObject(gridComponent, testCase, properties || {})
        verify(grid !== null)
        return grid
    }

    function test_weekCount_data() {
        return [
            {tag: "empty", length: 0, weeks: 1},
            {tag: "less than a week", length: 6, weeks: 1},
            {tag: "one week", length: 7, weeks: 1},
            {tag: "a week and a day", length: 8, weeks: 1},
            {tag: "a year", length: 364, weeks: 52},
            {tag: "a year and some", length: 370, weeks: 52}
        ]
    }

    function test_weekCount(data) {
        const days = []
        for (let i = 0; i < data.length; ++i)
            days.push({isPadding: true})
        const grid = makeGrid({days: days})
        compare(grid.weekCount, data.weeks)
    }

    function test_cellSizes_data() {
        return [
            {tag: "roomy", gridWidth: 1456, weeks: 52, cell: 28, drawn: 26},
            {tag: "rounded down", gridWidth: 1000, weeks: 52, cell: 19, drawn: 17},
            {tag: "narrow keeps the minimum", gridWidth: 500, weeks: 52, cell: 14, drawn: 12},
            {tag: "one week", gridWidth: 60, weeks: 1, cell: 60, drawn: 58}
        ]
    }

    function test_cellSizes(data) {
        const grid = makeGrid()
        compare(grid._cellSizeFor(data.gridWidth, data.weeks), data.cell)
        compare(grid._drawnSizeFor(data.cell), data.drawn)
    }

    function test_drawnCellNeverBelowTen() {
        const grid = makeGrid()
        compare(grid._drawnSizeFor(11), 10)
        compare(grid._drawnSizeFor(12), 10)
    }

    function test_layoutFollowsWidth() {
        // 34 pixels of weekday labels, then 52 weeks of 20.
        const grid = makeGrid({days: yearOfDays(), width: 34 + 52 * 20})
        compare(grid.cellSize, 20)
        compare(grid.drawnCellSize, 18)
        const cell = findChild(grid, "dayCell9")
        verify(cell !== null)
        compare(cell.width, 18)
        // Day 9 is the third day of the second week: one column over, two rows down.
        const origin = cell.mapToItem(findChild(grid, "cellArea"), 0, 0)
        compare(origin.x, 20 + 1)
        compare(origin.y, 2 * 20 + 1)
        compare(grid.implicitHeight, grid._monthRowHeight + 7 * 20)
    }

    function test_parseDate_data() {
        return [
            {tag: "first of March", text: "2026-03-01", year: 2026, month: 2, day: 1},
            {tag: "new year's eve", text: "2025-12-31", year: 2025, month: 11, day: 31},
            {tag: "leap day", text: "2024-02-29", year: 2024, month: 1, day: 29}
        ]
    }

    function test_parseDate(data) {
        const date = makeGrid()._parseDate(data.text)
        compare(date.getFullYear(), data.year)
        compare(date.getMonth(), data.month)
        compare(date.getDate(), data.day)
        // Local midnight, so a time zone never moves the day.
        compare(date.getHours(), 0)
    }

    function test_parseDateRejectsOtherTexts() {
        const grid = makeGrid()
        compare(grid._parseDate("2026-03"), null)
        compare(grid._parseDate("March first"), null)
        compare(grid._parseDate(undefined), null)
    }

    function test_monthLabels_data() {
        return [
            {tag: "a week without a first", week: 0, label: "", hasNoFirst: true},
            {tag: "December starts on a Monday", week: 1, label: "Dec"},
            {tag: "January starts on a Thursday", week: 5, label: "Jan"},
            {tag: "March starts on a Sunday", week: 13, label: "Mar"},
            {tag: "a mid-month week", week: 14, label: "", hasNoFirst: true},
            {tag: "the last week", week: 51, label: ""}
        ]
    }

    function test_monthLabels(data) {
        const grid = makeGrid({days: yearOfDays()})
        compare(grid._monthLabel(data.week), data.label)
    }

    function test_everyMonthNamedOnceInAYear() {
        const grid = makeGrid({days: yearOfDays()})
        const labels = []
        for (let week = 0; week < grid.weekCount; ++week) {
            if (grid._monthLabel(week) !== "")
                labels.push(grid._monthLabel(week))
        }
        compare(labels, ["Dec", "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov"])
    }

    function test_paddingNeverNamesAMonth() {
        // Three padding days, then Thursday 2026-01-01 to Sunday 2026-01-04; then a week of padding only.
        const days = [{isPadding: true}, {isPadding: true}, {isPadding: true}]
        for (let day = 1; day <= 4; ++day)
            days.push({isPadding: false, date: "2026-01-0" + day, solves: 0})
        for (let i = 0; i < 7; ++i)
            days.push({isPadding: true, date: "2026-02-01"})
        const grid = makeGrid({days: days})
        compare(grid._monthLabel(0), "Jan")
        compare(grid._monthLabel(1), "", "padding is not read, whatever it carries")
    }

    function test_cellColor_data() {
        return [
            {tag: "none", solves: 0, level: 0},
            {tag: "negative", solves: -3, level: 0},
            {tag: "rounds down to none", solves: 0.4, level: 0},
            {tag: "not a number", solves: "many", level: 0},
            {tag: "missing", solves: undefined, level: 0},
            {tag: "rounds up to one", solves: 0.6, level: 1},
            {tag: "one", solves: 1, level: 1},
            {tag: "two", solves: 2, level: 2},
            {tag: "three", solves: 3, level: 3},
            {tag: "thirty", solves: 30, level: 3}
        ]
    }

    function expectedColor(theme, level) {
        if (level === 0)
            return theme.surface2
        if (level === 1)
            return theme.withOpacity(theme.accent, 0.55)
        return level === 2 ? theme.accentMuted : theme.accent
    }

    function test_cellColor(data) {
        for (const theme of [darkTheme, lightTheme]) {
            const grid = makeGrid({theme: theme})
            verify(Qt.colorEqual(grid.cellColor(data.solves), expectedColor(theme, data.level)),
                   (theme.dark ? "dark: " : "light: ") + grid.cellColor(data.solves))
        }
    }

    // Without a theme the grid colours its days as the dark theme does.
    function test_cellColorWithoutTheme_data() {
        return [
            {tag: "none", solves: 0, level: 0},
            {tag: "one", solves: 1, level: 1},
            {tag: "two", solves: 2, level: 2},
            {tag: "three", solves: 3, level: 3},
            {tag: "many", solves: 12, level: 3}
        ]
    }

    function test_cellColorWithoutTheme(data) {
        verify(Qt.colorEqual(makeGrid().cellColor(data.solves), expectedColor(darkTheme, data.level)))
    }

    function test_busyDayDoesNotRescale() {
        // The scale is absolute: three solves look the same beside thirty as on their own.
        const grid = makeGrid({theme: darkTheme, width: 1200,
                               days: yearOfDays({"2026-03-02": 3, "2026-03-03": 30, "2026-03-04": 1})})
        compare(grid.cellColor(3), grid.cellColor(30))
        const three = findChild(grid, "dayCell" + 98)
        const thirty = findChild(grid, "dayCell" + 99)
        const one = findChild(grid, "dayCell" + 100)
        verify(Qt.colorEqual(three.color, thirty.color))
        verify(Qt.colorEqual(three.color, darkTheme.accent))
        verify(Qt.colorEqual(one.color, darkTheme.withOpacity(darkTheme.accent, 0.55)))
    }

    function test_borderColor_data() {
        return [
            {tag: "padding", day: {isPadding: true}, kind: "transparent"},
            {tag: "no solves", day: {isPadding: false, date: "2026-03-02", solves: 0}, kind: "stroke"},
            {tag: "solves", day: {isPadding: false, date: "2026-03-02", solves: 4}, kind: "darkAccent"}
        ]
    }

    function test_borderColor(data) {
        const grid = makeGrid({theme: darkTheme})
        const expected = data.kind === "transparent" ? "transparent"
                       : data.kind === "stroke" ? darkTheme.stroke : Qt.darker(darkTheme.accent, 1.35)
        verify(Qt.colorEqual(grid._borderColor(data.day), expected), String(grid._borderColor(data.day)))
    }

    function test_paddingCellIsTransparent() {
        const grid = makeGrid({theme: darkTheme, days: [{isPadding: true}].concat(yearOfDays().slice(1))})
        const cell = findChild(grid, "dayCell0")
        verify(Qt.colorEqual(cell.color, "transparent"))
        verify(Qt.colorEqual(cell.border.color, "transparent"))
    }

    function test_tooltipText_data() {
        return [
            {tag: "past day", day: {isPadding: false, date: "2026-03-01", isFuture: false, solves: 3,
                                    avgIterations: 412.6, avgExploitability: 0.123456},
             text: "2026-03-01\nSolves: 3\nAvg iters: 413\nAvg expl: 0.1235"},
            {tag: "coming day", day: {isPadding: false, date: "2026-11-21", isFuture: true, solves: 0,
                                      avgIterations: 0.0, avgExploitability: 0.0},
             text: "2026-11-21 (future)\nSolves: 0\nAvg iters: 0\nAvg expl: 0.0000"},
            {tag: "padding", day: {isPadding: true}, text: ""}
        ]
    }

    function test_tooltipText(data) {
        compare(makeGrid()._tooltipText(data.day), data.text)
    }

    function test_indexAt_data() {
        return [
            {tag: "first cell", x: 0, y: 0, index: 0},
            {tag: "first cell's far corner", x: 19, y: 19, index: 0},
            {tag: "second week's Monday", x: 20, y: 0, index: 7},
            {tag: "second week's Wednesday", x: 25, y: 45, index: 9},
            {tag: "last Sunday", x: 51 * 20 + 5, y: 6 * 20 + 5, index: 363},
            {tag: "left of the grid", x: -1, y: 5, index: -1},
            {tag: "below Sunday", x: 5, y: 7 * 20, index: -1},
            {tag: "after the last week", x: 52 * 20, y: 5, index: -1}
        ]
    }

    function test_indexAt(data) {
        const grid = makeGrid({days: yearOfDays(), width: 34 + 52 * 20})
        compare(grid._indexAt(data.x, data.y), data.index)
    }

    function test_tooltipShowsAfterTheDelay() {
        const grid = makeGrid({theme: darkTheme, width: 34 + 52 * 20, days: yearOfDays({"2026-03-04": 2})})
        const area = findChild(grid, "cellArea")
        const tip = findChild(grid, "activityTooltip")
        waitForRendering(grid)
        // 2026-03-04 is day 100: week 14, Wednesday.
        const started = Date.now()
        mouseMove(area, 14 * 20 + 10, 2 * 20 + 10)
        verify(!tip.visible, "not at once")
        tryVerify(() => tip.visible, 2000)
        verify(Date.now() - started >= 150, "shown after " + (Date.now() - started) + " ms")
        compare(tip.text, "2026-03-04\nSolves: 2\nAvg iters: 400\nAvg expl: 0.0500")
        compare(tip.text.split("\n").length, 4)
        mouseMove(area, 14 * 20 + 10, 8 * 20)
        verify(!tip.visible, "leaving the days hides it")
    }

    function test_paddingCellHasNoTooltip() {
        const days = [{isPadding: true}].concat(yearOfDays().slice(1))
        const grid = makeGrid({theme: darkTheme, width: 34 + 52 * 20, days: days})
        const area = findChild(grid, "cellArea")
        const tip = findChild(grid, "activityTooltip")
        waitForRendering(grid)
        mouseMove(area, 10, 10)
        wait(400)
        verify(!tip.visible)
        mouseMove(area, 10, 30)
        tryVerify(() => tip.visible, 2000, "the next day down has one")
    }
}
