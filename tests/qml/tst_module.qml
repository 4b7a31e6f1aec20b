import QtQuick
import QtTest

TestCase {
    id: testCase

    name: "Module"

    readonly property var typesByFile: ({
        "Main.qml": "Main",
        "AppShell.qml": "AppShell",
        "theme/Theme.qml": "Theme",
        "theme/Typography.qml": "Typography",
        "components/TopBar.qml": "TopBar",
        "pages/HomePage.qml": "HomePage",
        "pages/ProjectPage.qml": "ProjectPage",
        "pages/SolvePage.qml": "SolvePage",
        "pages/ResultsPage.qml": "ResultsPage",
        "pages/SettingsPage.qml": "SettingsPage"
    })
    readonly property string assetRoot: "qrc:/Kelvane/qml/assets/"

    Component {
        id: imageComponent

        Image {}
    }

    // A file keeps its folder in the resource path.
    function test_resourcePaths() {
        for (const file in typesByFile) {
            const component = Qt.createComponent("qrc:/Kelvane/" + file)
            compare(component.status, Component.Ready, file + ": " + component.errorString())
        }
    }

    // Whatever its folder, a file is a type of the module under its bare name.
    function test_typeNames() {
        for (const file in typesByFile) {
            const typeName = typesByFile[file]
            if (typeName === "Main")
                continue
            const object = Qt.createQmlObject("import Kelvane\n" + typeName + " {}", testCase, typeName)
            verify(object !== null, typeName)
            object.destroy()
        }
    }

    function loadImage(source) {
        const image = createTemporaryObject(imageComponent, testCase, {source: source})
        tryVerify(() => image.status !== Image.Loading, 5000)
        return image.status
    }

    function test_tabIconsAreInTheResources_data() {
        return ["home", "clipboard", "bolt", "chart", "gear"].map(name => ({tag: name, name: name}))
    }

    function test_tabIconsAreInTheResources(data) {
        compare(loadImage(assetRoot + "icons/" + data.name + ".svg"), Image.Ready)
    }

    function test_windowIconIsInTheResources() {
        compare(loadImage(assetRoot + "Orvanthis_logo.png"), Image.Ready)
    }
}
