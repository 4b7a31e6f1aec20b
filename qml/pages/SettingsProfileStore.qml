// The saved settings profiles in the settings store ("settings_profiles/profilesJson", a JSON array), and the
// rules that every stored profile follows: a trimmed name that is not empty, an id, a creation time, a data map.
import QtQuick
import Qt.labs.settings

QtObject {
    id: store

    readonly property Settings _settings: Settings {
        category: "settings_profiles"
    }
    readonly property string _key: "profilesJson"

    // The same form as the range library's node ids.
    function newId() {
        return "n_" + Date.now().toString(36) + "_" + Math.random().toString(36).slice(2, 8)
    }

    // The trimmed name if it is free, else the first free of "name (2)", "name (3)", ...
    function uniqueName(existing, raw) {
        const base = String(raw === undefined || raw === null ? "" : raw).trim()
        const taken = (Array.isArray(existing) ? existing : [])
            .map(entry => entry && typeof entry === "object" ? String(entry.name) : String(entry))
        if (taken.indexOf(base) < 0)
            return base
        let n = 2
        while (taken.indexOf(base + " (" + n + ")") >= 0)
            ++n
        return base + " (" + n + ")"
    }

    function _sanitizeOne(entry) {
        if (!entry || typeof entry !== "object")
            return null
        const name = String(entry.name === undefined || entry.name === null ? "" : entry.name).trim()
        if (name === "")
            return null
        const id = typeof entry.id === "string" && entry.id.trim() !== "" ? entry.id : newId()
        const data = entry.data && typeof entry.data === "object" && !Array.isArray(entry.data) ? entry.data : {}
        return {id: id, name: name, createdAt: entry.createdAt ? String(entry.createdAt) : "", data: data}
    }

    function sanitize(arr) {
        if (!Array.isArray(arr))
            return []
        return arr.map(entry => _sanitizeOne(entry)).filter(profile => profile !== null)
    }

    // A stored text that is not JSON counts as no profiles; it stays until the list is next written.
    function read() {
        const text = String(_settings.value(_key, ""))
        if (text.trim() === "")
            return []
        try {
            return sanitize(JSON.parse(text))
        } catch (error) {
            return []
        }
    }

    function write(profiles) {
        _settings.setValue(_key, JSON.stringify(sanitize(profiles)))
        _settings.sync()
    }
}
