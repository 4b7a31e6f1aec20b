// Stands in for the application controller where a test must force what the real one only reports: a run,
// memory figures, a thread count or results. It records every call the shell makes.
import QtQuick

QtObject {
    property bool running: false
    property real progress: 0
    property string statusText: "Ready"
    property int resultIterations: 0
    property int systemThreadCount: 8
    property real solveRequiredMemoryBytes: 0
    property real systemAvailableMemoryBytes: 0
    property bool developerMode: false

    property var startedConfigs: []
    property var estimateConfigs: []
    property int clearCount: 0
    property int cancelCount: 0

    function startSolveWithConfig(cfg) {
        startedConfigs = startedConfigs.concat([cfg])
    }

    function requestSolveMemoryEstimate(cfg) {
        estimateConfigs = estimateConfigs.concat([cfg])
    }

    // The stand-in holds no resources: the range library finds no bundled presets and says so.
    function readTextResource(path) {
        return ""
    }

    function clearResults() {
        ++clearCount
    }

    function cancelSolve() {
        ++cancelCount
    }

    // Stands for a finished estimate that leaves room to solve.
    function grantMemory() {
        solveRequiredMemoryBytes = 1000
        systemAvailableMemoryBytes = 2000
    }
}
