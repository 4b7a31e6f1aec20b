// The main call to action: an accent gradient button with an optional icon or a busy spinner.
import QtQuick
import QtQuick.Controls

Button {
    id: root

    property var theme: null
    property bool loading: false
    property string iconText: ""
    property string iconName: ""

    // Dark values used when the button is shown without a theme.
    readonly property var _fallback: ({
        accent: "#3FB950",
        accentMuted: Qt.darker("#3FB950", 1.6),
        text: "#F0F6FC",
        surface2: "#21262D",
        surface3: "#2D333B",
        radiusSm: 8
    })
    readonly property real _hoverScale: 1.02
    readonly property int _hoverDuration: 100
    readonly property real _shadeFactor: 1.1
    readonly property real _disabledContentOpacity: 0.85
    readonly property color _innerBorder: Qt.rgba(1, 1, 1, 0.1)

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    function _topColor() {
        if (!enabled)
            return _t("surface3")
        if (down)
            return Qt.darker(_t("accent"), _shadeFactor)
        return hovered ? Qt.lighter(_t("accent"), _shadeFactor) : _t("accent")
    }

    function _bottomColor() {
        if (!enabled)
            return _t("surface2")
        return down ? Qt.darker(_t("accentMuted"), _shadeFactor) : _t("accentMuted")
    }

    // Hover feedback is part of the look, whatever the platform's default.
    hoverEnabled: true
    implicitHeight: 40
    implicitWidth: Math.max(implicitBackgroundWidth, implicitContentWidth + leftPadding + rightPadding)
    horizontalPadding: 16
    scale: hovered && enabled ? _hoverScale : 1.0

    Behavior on scale {
        NumberAnimation { duration: root._hoverDuration }
    }

    contentItem: ButtonContent {
        text: root.text
        iconName: root.iconName
        iconText: root.iconText
        loading: root.loading
        color: root.enabled ? "white" : root._t("text")
        opacity: root.enabled ? 1.0 : root._disabledContentOpacity
    }

    background: Rectangle {
        radius: root._t("radiusSm")
        border.color: root._innerBorder
        border.width: 1
        gradient: Gradient {
            GradientStop { position: 0.0; color: root._topColor() }
            GradientStop { position: 1.0; color: root._bottomColor() }
        }
    }
}
