// A small rounded tag; it can be clickable, or removable through its own "×" button.
import QtQuick

Rectangle {
    id: root

    property var theme: null
    property string text: ""
    property color tint: _t("surface2")
    property color stroke: _t("stroke")
    property color textColor: _t("text")
    property string iconText: ""
    property bool removable: false
    property bool clickable: false

    // Dark values used when the chip is shown without a theme.
    readonly property var _fallback: ({
        surface2: "#21262D",
        stroke: "#30363D",
        text: "#F0F6FC",
        danger: "#F85149"
    })
    // The remove button takes the pointer, so the chip itself is only clickable without it.
    readonly property bool _acceptsClick: clickable && !removable
    readonly property bool _hovered: _acceptsClick && chipArea.containsMouse
    readonly property int _horizontalPadding: 8
    readonly property int _labelSize: 12
    readonly property int _removeSize: 16
    readonly property real _hoverScale: 1.05
    readonly property real _hoverLighten: 1.1
    readonly property int _hoverDuration: 100

    signal clicked()
    signal removeClicked()

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    implicitWidth: row.implicitWidth + 2 * _horizontalPadding
    implicitHeight: 28
    radius: height / 2
    color: _hovered ? Qt.lighter(tint, _hoverLighten) : tint
    border.color: stroke
    border.width: 1
    scale: _hovered ? _hoverScale : 1.0

    Behavior on scale {
        NumberAnimation { duration: root._hoverDuration }
    }

    MouseArea {
        id: chipArea
        anchors.fill: parent
        enabled: root._acceptsClick
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: root.clicked()
    }

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 6

        Text {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.iconText !== ""
            text: root.iconText
            color: root.textColor
            font.pixelSize: root._labelSize
        }

        Text {
            objectName: "label"
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: root.textColor
            font.pixelSize: root._labelSize
            maximumLineCount: 1
            wrapMode: Text.NoWrap
        }

        Text {
            objectName: "remove"
            anchors.verticalCenter: parent.verticalCenter
            visible: root.removable
            text: qsTr("×")
            color: removeArea.containsMouse ? root._t("danger") : root.textColor
            font.pixelSize: root._removeSize

            MouseArea {
                id: removeArea
                // A little larger than the glyph, which alone is hard to hit.
                anchors.fill: parent
                anchors.margins: -4
                hoverEnabled: true
                cursorShape: Qt.PointingHandCursor
                onClicked: root.removeClicked()
            }
        }
    }
}
