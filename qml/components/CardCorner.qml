// A card's corner index: the rank above its suit symbol, both in the suit's colour.
import QtQuick

Column {
    id: root

    property string rank: ""
    property string symbol: ""
    property color color: "black"
    property int rankSize: 15
    property int symbolSize: 12

    spacing: -2

    Text {
        objectName: "cornerRank"
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.rank
        color: root.color
        font.pixelSize: root.rankSize
        font.bold: true
    }

    Text {
        objectName: "cornerSuit"
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.symbol
        color: root.color
        font.pixelSize: root.symbolSize
    }
}
