// One rank tile of the card picker; a used card is greyed and shows that it cannot be taken.
import QtQuick

Rectangle {
    id: root

    property string card: ""
    property bool used: false
    property int size: 28
    property color fillColor: "transparent"
    property color borderColor: "transparent"
    property color textColor: "white"
    property int fontSize: 13

    readonly property real _hoverScale: 1.1
    readonly property int _hoverDuration: 100

    signal picked()

    width: size
    height: size
    color: fillColor
    border.color: borderColor
    border.width: 1
    scale: !used && area.containsMouse ? _hoverScale : 1.0
    z: area.containsMouse ? 1 : 0

    Behavior on scale {
        NumberAnimation { duration: root._hoverDuration }
    }

    Text {
        anchors.centerIn: parent
        text: root.card.charAt(0)
        color: root.textColor
        font.pixelSize: root.fontSize
        font.bold: true
    }

    MouseArea {
        id: area
        objectName: "tileArea"
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: root.used ? Qt.ForbiddenCursor : Qt.PointingHandCursor
        onClicked: root.picked()
    }
}
