// The quieter button beside a primary one; `danger` turns it into a destructive action.
import QtQuick
import QtQuick.Controls

Button {
    id: root

    property var theme: null
    property string iconText: ""
    property string iconName: ""
    property bool danger: false

    // Dark values used when the button is shown without a theme.
    readonly property var _fallback: ({
        surface: "#1C2128",
        surfaceHover: "#30363D",
        surface3: "#2D333B",
        stroke: "#30363D",
        strokeFocus: "#58A6FF",
        text: "#F0F6FC",
        danger: "#F85149",
        radiusSm: 8
    })
    readonly property real _disabledOpacity: 0.5

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    function _fillColor() {
        if (down)
            return _t("surface3")
        return hovered ? _t("surfaceHover") : _t("surface")
    }

    function _borderColor() {
        if (danger)
            return _t("danger")
        return hovered ? _t("strokeFocus") : _t("stroke")
    }

    // Hover feedback is part of the look, whatever the platform's default.
    hoverEnabled: true
    implicitHeight: 40
    implicitWidth: Math.max(implicitBackgroundWidth, implicitContentWidth + leftPadding + rightPadding)
    horizontalPadding: 16
    opacity: enabled ? 1.0 : _disabledOpacity

    contentItem: ButtonContent {
        text: root.text
        iconName: root.iconName
        iconText: root.iconText
        color: root.danger ? root._t("danger") : root._t("text")
    }

    background: Rectangle {
        radius: root._t("radiusSm")
        color: root._fillColor()
        border.color: root._borderColor()
        border.width: 1
    }
}
