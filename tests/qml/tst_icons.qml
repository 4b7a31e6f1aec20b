import QtQuick
import QtTest
import Kelvane

// TestCase itself is invisible, so the icons under test are placed in this visible item.
Item {
    id: root

    width: 200
    height: 200

    TestCase {
        id: testCase

        name: "Icons"
        when: windowShown

        readonly property string iconFolder: "qrc:/Kelvane/qml/assets/icons/"
        readonly property var iconNames: ["bolt", "calendar", "cards", "chart", "chips", "clipboard", "clock",
            "file-text", "folder-open", "gamepad", "gear", "home", "monitor", "palette", "save", "scroll",
            "sliders", "stop", "target", "tree", "trend-up"]

        Component { id: iconComponent; Icon {} }

        function create(properties) {
            const icon = createTemporaryObject(iconComponent, root, properties)
            verify(icon !== null, "icon could not be created")
            return icon
        }

        function test_defaults() {
            const icon = create({})
            compare(icon.name, "")
            compare(icon.size, 16)
            verify(Qt.colorEqual(icon.color, "white"), "default colour")
            compare(icon.iconOpacity, 1.0)
            compare(icon.width, 16)
            compare(icon.height, 16)
        }

        function test_every_name_loads_data() {
            return iconNames.map(name => ({ tag: name, name: name }))
        }

        function test_every_name_loads(data) {
            const icon = create({ name: data.name, size: 24, color: "#F0B429" })
            const image = findChild(icon, "image")
            compare(String(image.source), iconFolder + data.name + ".svg")
            tryCompare(image, "status", Image.Ready)
            compare(image.sourceSize.width, 24)
            const overlay = findChild(icon, "overlay")
            compare(overlay.visible, true)
            verify(Qt.colorEqual(overlay.color, "#F0B429"), "tint colour")
            // The artwork itself is never drawn, only its tinted copy.
            compare(image.visible, false)
        }

        function test_opacity_applies_to_the_tinted_copy() {
            const icon = create({ name: "gear", iconOpacity: 0.4 })
            compare(findChild(icon, "overlay").opacity, 0.4)
        }

        function test_empty_name_shows_nothing() {
            const icon = create({ name: "" })
            const image = findChild(icon, "image")
            compare(image.status, Image.Null)
            compare(findChild(icon, "overlay").visible, false)
        }

        function test_unknown_name_shows_nothing() {
            ignoreWarning(new RegExp("no-such-icon\\.svg"))
            const icon = create({ name: "no-such-icon" })
            const image = findChild(icon, "image")
            tryCompare(image, "status", Image.Error)
            compare(findChild(icon, "overlay").visible, false)
        }
    }
}
