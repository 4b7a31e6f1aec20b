// The Home page: where every start lands, and where a project is begun or opened.
import QtQuick

Item {
    id: page

    property var theme: null
    property var type: null
    property var projectStateProvider: null

    signal newProject()
    signal quickSolve()
    signal importRange()
    signal projectLoaded(var projectState, bool hasResults)

    Text {
        anchors.centerIn: parent
        text: qsTr("Home")
        color: page.theme.textMuted
        font.family: page.theme.fontFamily
        font.pixelSize: page.type.displaySm
        font.weight: page.type.weightSemibold
    }
}
