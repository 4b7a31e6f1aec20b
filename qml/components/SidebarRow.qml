// One page entry of the sidebar; the selected row is filled, marked in the accent and shows its subtitle.
import QtQuick

Rectangle {
    id: root

    property var theme: null
    property string title: ""
    property string subtitle: ""
    property string iconName: ""
    property bool selected: false

    // Dark values used when the row is shown without a theme.
    readonly property var _fallback: ({
        accent: "#3FB950",
        surface: "#1C2128",
        surfaceHover: "#30363D",
        text: "#F0F6FC",
        textMuted: "#8B949E",
        radiusSm: 8
    })
    readonly property int _markerWidth: 3
    readonly property int _iconSize: 18

    signal clicked()

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    function _fillColor() {
        if (selected)
            return _t("surface")
        return area.containsMouse ? _t("surfaceHover") : "transparent"
    }

    implicitHeight: 52
    radius: _t("radiusSm")
    color: _fillColor()

    Rectangle {
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: root._markerWidth
        height: parent.height - 20
        radius: width / 2
        color: root._t("accent")
        visible: root.selected
    }

    Icon {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        name: root.iconName
        size: root._iconSize
        color: root.selected ? root._t("accent") : root._t("textMuted")
    }

    Column {
        anchors.left: icon.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Text {
            objectName: "title"
            width: parent.width
            text: root.title
            color: root.selected ? root._t("text") : root._t("textMuted")
            font.pixelSize: 14
            font.weight: root.selected ? Font.DemiBold : Font.Medium
            elide: Text.ElideRight
        }

        Text {
            objectName: "subtitle"
            width: parent.width
            visible: root.selected
            text: root.subtitle
            color: root._t("textMuted")
            font.pixelSize: 11
            elide: Text.ElideRight
        }
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: root.clicked()
    }
}
