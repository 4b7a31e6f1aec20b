// Photographs every shared component in the dark and the light theme, one PNG per section and theme, into the
// folder named by KELVANE_SCREENSHOT_DIR. Run on its own: kelvane_qml_tests -input tests/qml/gallery/ComponentGallery.qml
import QtQuick
import QtTest
import Kelvane

Item {
    id: root

    width: 1400
    height: 1400

    TestCase {
        id: testCase

        name: "ComponentGallery"
        when: windowShown

        Theme { id: darkTheme }
        Theme { id: lightTheme; dark: false }

        Component { id: sheetComponent; GallerySheet { anchors.fill: parent } }

        function save(item, path) {
            let saved = false
            verify(item.grabToImage(result => { saved = result.saveToFile(path) }))
            tryVerify(() => saved, 5000, "could not write " + path)
        }

        function test_photograph_data() {
            return [{ tag: "dark", theme: darkTheme }, { tag: "light", theme: lightTheme }]
        }

        function test_photograph(data) {
            if (screenshotDirectory === "")
                skip("KELVANE_SCREENSHOT_DIR is not set")
            const sheet = createTemporaryObject(sheetComponent, root, { theme: data.theme })
            // Let images load, canvases paint and entry animations settle.
            wait(600)
            for (const name of sheet.sectionNames)
                save(findChild(sheet, name), screenshotDirectory + "/" + data.tag + "_" + name + ".png")
        }
    }
}
