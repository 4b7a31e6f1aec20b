// Reads the bundled range documents: through the controller's resource reader when it has one, otherwise by an
// asynchronous request for each place the resource may be found under.
import QtQuick

QtObject {
    id: presets

    property var controller: null

    readonly property var standardPaths: [":/Kelvane/qml/data/standard_ranges.json",
        ":/qt/qml/Kelvane/qml/data/standard_ranges.json"]
    readonly property var exploitPaths: [":/Kelvane/qml/data/exploit_ranges.json",
        ":/qt/qml/Kelvane/qml/data/exploit_ranges.json"]
    readonly property var standardUrls: ["qrc:/Kelvane/qml/data/standard_ranges.json",
        Qt.resolvedUrl("../qml/data/standard_ranges.json"), "qrc:/qt/qml/Kelvane/qml/data/standard_ranges.json"]
    readonly property var exploitUrls: ["qrc:/Kelvane/qml/data/exploit_ranges.json",
        Qt.resolvedUrl("../qml/data/exploit_ranges.json"), "qrc:/qt/qml/Kelvane/qml/data/exploit_ranges.json"]
    readonly property string fetchFailure: "Failed to load bundled presets."
    readonly property int _httpOk: 200
    // A resource answers at once; this only ends a request that never will.
    readonly property int _requestTimeoutMs: 1000
    property var _onRequestTimeout: null
    readonly property Timer _requestTimer: Timer {
        interval: presets._requestTimeoutMs
        onTriggered: presets._onRequestTimeout()
    }

    function canReadResources() {
        return !!controller && typeof controller.readTextResource === "function"
    }

    function _isBlank(text) {
        return text === undefined || text === null || String(text).trim() === ""
    }

    function _logLoaded(label, source, text) {
        console.info("[ranges] Loaded " + label + " presets via AppController from", source, "bytes=" + text.length)
    }

    // The first text that is not blank, or null when every path gives nothing.
    function readFirst(paths, label) {
        for (const path of paths) {
            const text = controller.readTextResource(path)
            if (!_isBlank(text)) {
                _logLoaded(label, path, String(text))
                return String(text)
            }
        }
        return null
    }

    function _requestFailure(url, request) {
        if (request.status === 0)
            return "Failed to load bundled presets from " + url + " (network error)"
        return "Failed to load bundled presets from " + url + ": " + request.status + " " + request.statusText
    }

    // Tries the URLs in turn and calls done(text) with the first text that is not blank, or done(null). A request
    // that never answers, as Qt's own ban on reading local files leaves it, counts as a network error.
    function fetchFirst(urls, label, done) {
        const attempt = index => {
            if (index >= urls.length) {
                done(null)
                return
            }
            const url = String(urls[index])
            const request = new XMLHttpRequest()
            let settled = false
            const giveUp = message => {
                console.warn(message)
                attempt(index + 1)
            }
            request.onreadystatechange = () => {
                if (settled || request.readyState !== XMLHttpRequest.DONE)
                    return
                settled = true
                _requestTimer.stop()
                const ok = (request.status === _httpOk || request.status === 0) && !_isBlank(request.responseText)
                if (!ok) {
                    giveUp(_requestFailure(url, request))
                    return
                }
                console.info("[ranges] Loaded " + label + " presets from", url, "bytes=" + request.responseText.length)
                done(request.responseText)
            }
            _onRequestTimeout = () => {
                if (settled)
                    return
                settled = true
                request.abort()
                giveUp("Failed to load bundled presets from " + url + " (network error)")
            }
            try {
                _requestTimer.restart()
                request.open("GET", url)
                request.send()
            } catch (error) {
                settled = true
                _requestTimer.stop()
                giveUp("Failed to load bundled presets from " + url + ": " + error)
            }
        }
        attempt(0)
    }
}
