// The Settings page: the look of the interface and its language.
import QtQuick

Item {
    id: page

    property var theme: null
    property var type: null
    property bool darkMode: true

    Text {
        anchors.centerIn: parent
        text: qsTr("Settings")
        color: page.theme.textMuted
        font.family: page.theme.fontFamily
        font.pixelSize: page.type.displaySm
        font.weight: page.type.weightSemibold
    }
}
