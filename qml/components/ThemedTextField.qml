// A single-line text field in the theme's colours. With `elideWhenIdle` a long text that is not being edited is
// shown cut short with an ellipsis, so that it stays inside its box instead of scrolling out of it.
import QtQuick
import Kelvane
import QtQuick.Controls

TextField {
    id: field

    property var theme: null
    property bool elideWhenIdle: false

    readonly property Theme _darkTheme: Theme {}
    readonly property var _theme: theme ? theme : _darkTheme
    readonly property bool _showsElidedCopy: elideWhenIdle && !activeFocus
    readonly property real _selectionAlpha: 0.35
    readonly property int _fieldHeight: 36

    color: _showsElidedCopy ? "transparent" : _theme.text
    placeholderTextColor: _theme.textFaint
    selectionColor: _theme.withOpacity(_theme.accent, _selectionAlpha)
    selectedTextColor: _theme.text
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true

    background: Rectangle {
        // An eliding field is as wide as its placeholder, not its text, so a long range does not widen its card.
        implicitWidth: field.elideWhenIdle
                       ? placeholderMetrics.advanceWidth + field.leftPadding + field.rightPadding : 0
        implicitHeight: field._fieldHeight
        radius: field._theme.radiusSm
        color: field._theme.surface2
        border.color: field.activeFocus ? field._theme.strokeFocus : field._theme.stroke
        border.width: 1
    }

    TextMetrics {
        id: placeholderMetrics
        font: field.font
        text: field.placeholderText
    }

    Text {
        objectName: "elidedCopy"
        x: field.leftPadding
        width: field.width - field.leftPadding - field.rightPadding
        anchors.verticalCenter: parent.verticalCenter
        visible: field._showsElidedCopy
        text: field.text
        elide: Text.ElideRight
        color: field._theme.text
        font: field.font
    }
}
