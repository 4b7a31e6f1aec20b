// The Home page: where every start lands, where a project is begun, saved or opened, and where the user's
// practice figures, the machine and a year of solves are on view. The project state stays with the shell,
// which lends it through projectStateProvider; this page owns only the project file dialogs.
import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Kelvane

Item {
    id: page

    property var theme: null
    property var type: null
    property var projectStateProvider: null
    // The application's controller unless a test or a host hands in another.
    property var controller: typeof appController !== "undefined" ? appController : null

    property var solveActivityGrid: []
    property int solvesToday: 0
    property var playVsSolutionStats: ({})

    readonly property var _projectFileFilters: [qsTr("Kelvane Project (*.kelvaneproj)"), qsTr("JSON (*.json)"),
        qsTr("All Files (*)")]
    readonly property string _projectSuffix: "kelvaneproj"
    readonly property int _contentMaxWidth: 1600
    // The page may be made before its theme arrives.
    readonly property int _margin: theme ? theme.spaceXl : 0

    signal newProject()
    signal quickSolve()
    signal importRange()
    signal projectLoaded(var projectState, bool hasResults)

    // Asks the controller by name, so that a controller without the invokable leaves the fallback.
    function _ask(name, fallback, args) {
        if (!controller || typeof controller[name] !== "function")
            return fallback
        const answer = controller[name].apply(controller, args || [])
        return answer === undefined || answer === null ? fallback : answer
    }

    function reload() {
        solveActivityGrid = _ask("solveActivityGridLastYear", [])
        solvesToday = _ask("solvesToday", 0)
        playVsSolutionStats = _ask("playVsSolutionStats", {})
    }

    // Failures go to the log only: the user keeps the page and the project as they were.
    function _saveTo(fileUrl) {
        const state = typeof projectStateProvider === "function" ? projectStateProvider() : {}
        const saved = _ask("saveProject", false, [fileUrl, state]) === true
        if (!saved)
            console.warn("Save failed:", String(fileUrl))
        return saved
    }

    function _openFrom(fileUrl) {
        const result = _ask("loadProject", {}, [fileUrl])
        if (!result.ok) {
            console.warn("Load failed:", result.error ? String(result.error) : "unknown")
            return false
        }
        projectLoaded(result.project, result.hasResults === true)
        return true
    }

    function _chooseSaveFile() {
        saveDialog.open()
    }

    function _chooseOpenFile() {
        openDialog.open()
    }

    function _onQuickAction(key) {
        if (key === "newProject")
            newProject()
        else if (key === "quickSolve")
            quickSolve()
        else if (key === "importRange")
            importRange()
    }

    function _clearPlayStats() {
        _ask("clearPlayVsSolutionStats", undefined)
    }

    Component.onCompleted: reload()

    Connections {
        target: page.controller
        ignoreUnknownSignals: true

        function onSolveStatsChanged() {
            page.reload()
        }

        function onPlayVsSolutionStatsChanged() {
            page.reload()
        }
    }

    Flickable {
        id: flick

        objectName: "homeFlickable"
        anchors.fill: parent
        clip: true
        contentWidth: width
        contentHeight: content.implicitHeight + 2 * page._margin
        boundsBehavior: Flickable.StopAtBounds

        ScrollBar.vertical: ScrollBar {
            policy: flick.contentHeight > flick.height + 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        }

        ColumnLayout {
            id: content

            x: Math.max(page._margin, (flick.width - width) / 2)
            y: page._margin
            width: Math.min(flick.width - 2 * page._margin, page._contentMaxWidth)
            spacing: page._margin

            HomeHero {
                objectName: "homeHero"
                Layout.fillWidth: true
                theme: page.theme
                type: page.type
                onNewSolveClicked: page.newProject()
                onSaveClicked: page._chooseSaveFile()
                onOpenClicked: page._chooseOpenFile()
            }

            RowLayout {
                Layout.fillWidth: true
                spacing: page._margin

                HomeQuickActions {
                    objectName: "quickActionsCard"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    Layout.preferredWidth: 1
                    theme: page.theme
                    type: page.type
                    onActionChosen: key => page._onQuickAction(key)
                }

                HomeStatsCard {
                    objectName: "playStatsCard"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    Layout.preferredWidth: 1
                    theme: page.theme
                    type: page.type
                    stats: page.playVsSolutionStats
                    onClearConfirmed: page._clearPlayStats()
                }

                HomeSystemCard {
                    objectName: "systemCard"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    Layout.preferredWidth: 1
                    theme: page.theme
                    type: page.type
                    controller: page.controller
                }
            }

            HomeActivityCard {
                objectName: "activityCard"
                Layout.fillWidth: true
                theme: page.theme
                type: page.type
                days: page.solveActivityGrid
            }
        }
    }

    FileDialog {
        id: saveDialog

        objectName: "saveProjectDialog"
        title: qsTr("Save Project")
        fileMode: FileDialog.SaveFile
        nameFilters: page._projectFileFilters
        defaultSuffix: page._projectSuffix
        onAccepted: page._saveTo(selectedFile)
    }

    FileDialog {
        id: openDialog

        objectName: "openProjectDialog"
        title: qsTr("Open Project")
        fileMode: FileDialog.OpenFile
        nameFilters: page._projectFileFilters
        onAccepted: page._openFrom(selectedFile)
    }
}
