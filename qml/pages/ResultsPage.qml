// The Results page: the solved tree and its strategies.
import QtQuick

Item {
    id: page

    property var theme: null
    property var type: null
    property var controller: null
    property string boardText: ""
    property real rakePercent: 0.0
    property int rakeCap: 0

    Text {
        anchors.centerIn: parent
        text: qsTr("Results")
        color: page.theme.textMuted
        font.family: page.theme.fontFamily
        font.pixelSize: page.type.displaySm
        font.weight: page.type.weightSemibold
    }
}
