// One of the hero's choices at the table, tinted in its action's colour.
import QtQuick
import QtQuick.Controls

Button {
    id: button

    property var theme: null
    property var type: null

    readonly property real _fillAlpha: 0.9
    readonly property real _hoverAlpha: 1.0
    readonly property int _height: 34

    function _fill() {
        const base = theme.withOpacity(theme.surface, hovered ? _hoverAlpha : _fillAlpha)
        return down ? theme.surface3 : base
    }

    hoverEnabled: true
    implicitHeight: _height
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    horizontalPadding: theme.spaceMd

    contentItem: Text {
        text: button.text
        color: button.theme.text
        font.family: button.theme.fontFamily
        font.pixelSize: button.type.labelLg
        font.weight: button.type.weightSemibold
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: button.theme.radiusSm
        color: button._fill()
        border.color: button.theme.actionColor(button.text)
        border.width: button.hovered ? 2 : 1

        Rectangle {
            anchors.left: parent.left
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.margins: 1
            width: 4
            radius: 2
            color: button.theme.actionColor(button.text)
        }
    }
}
