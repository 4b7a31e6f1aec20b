// The whole text of a name or label that the range library's narrow column cuts short, in the theme's colours.
import QtQuick
import QtQuick.Controls
import Kelvane

ToolTip {
    id: tip

    property var theme: null
    property var type: null

    readonly property Theme _darkTheme: Theme {}
    readonly property var _theme: theme ? theme : _darkTheme
    readonly property Typography _defaultType: Typography {}
    readonly property var _type: type ? type : _defaultType
    readonly property int _showDelay: 400
    readonly property int _maxWidth: 360

    delay: _showDelay
    padding: _theme.spaceSm
    topPadding: _theme.spaceXs
    bottomPadding: _theme.spaceXs

    contentItem: Text {
        text: tip.text
        width: Math.min(implicitWidth, tip._maxWidth)
        wrapMode: Text.Wrap
        color: tip._theme.text
        font.family: tip._theme.fontFamily
        font.pixelSize: tip._type.labelMd
    }

    background: Rectangle {
        radius: tip._theme.radiusXs
        color: tip._theme.surface3
        border.color: tip._theme.stroke
        border.width: 1
    }
}
