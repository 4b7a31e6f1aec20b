// A compact button of the range library's narrow sidebar: the row height of the list, a small label that is cut
// short with an ellipsis when the column is too narrow for it (the whole text then shows as a tooltip), and a
// checked look for the category choice. `dangerFill` marks a destructive action.
import QtQuick
import QtQuick.Controls
import Kelvane

Button {
    id: button

    property var theme: null
    property var type: null
    property bool dangerFill: false

    readonly property Theme _darkTheme: Theme {}
    readonly property var _theme: theme ? theme : _darkTheme
    readonly property Typography _defaultType: Typography {}
    readonly property var _type: type ? type : _defaultType
    readonly property int _height: 26
    readonly property real _checkedFillAlpha: 0.15
    readonly property real _disabledOpacity: 0.5
    readonly property color _onDangerText: "white"

    function _fillColor() {
        if (dangerFill)
            return down ? _theme.darken(_theme.danger, 0.1) : hovered ? _theme.lighten(_theme.danger, 0.1)
                                                                      : _theme.danger
        if (checked)
            return _theme.withOpacity(_theme.accent, _checkedFillAlpha)
        if (down)
            return _theme.surface3
        return hovered ? _theme.surfaceHover : _theme.surface
    }

    function _borderColor() {
        if (dangerFill)
            return _theme.danger
        if (checked)
            return _theme.accent
        return hovered ? _theme.strokeFocus : _theme.stroke
    }

    function _textColor() {
        if (dangerFill)
            return _onDangerText
        return checked ? _theme.accent : _theme.text
    }

    implicitHeight: _height
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    horizontalPadding: _theme.spaceSm
    verticalPadding: 0
    hoverEnabled: true
    opacity: enabled ? 1.0 : _disabledOpacity

    contentItem: Text {
        objectName: "label"
        text: button.text
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        color: button._textColor()
        font.family: button._theme.fontFamily
        font.pixelSize: button._type.labelMd
        font.weight: button.checked ? button._type.weightSemibold : button._type.weightMedium
    }

    RangeLibraryToolTip {
        objectName: "labelToolTip"
        theme: button._theme
        type: button._type
        visible: button.hovered && button.contentItem.truncated
        text: button.text
    }

    background: Rectangle {
        radius: button._theme.radiusSm
        color: button._fillColor()
        border.color: button._borderColor()
        border.width: 1
    }
}
