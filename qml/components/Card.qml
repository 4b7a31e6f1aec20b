// A themed panel that sizes itself to its content, optionally lifting on hover or casting a shadow.
import QtQuick
import QtQuick.Controls
import Qt5Compat.GraphicalEffects

Frame {
    id: root

    property var theme: null
    property bool hoverable: false
    property bool elevated: false
    property color accentColor: "transparent"

    // Dark values used when the card is shown without a theme.
    readonly property var _fallback: ({
        surface: "#1C2128",
        surfaceHover: "#30363D",
        stroke: "#30363D",
        radiusMd: 12,
        spaceLg: 16,
        shadowOpacity: 0.5
    })
    readonly property bool _hovered: hoverable && hovered
    readonly property real _hoverScale: 1.01
    readonly property real _hoverOverlayOpacity: 0.3
    readonly property int _hoverDuration: 150
    readonly property real _depthGlowAlpha: 0.02
    // A soft shadow: half of a 32 pixel blur, four pixels down.
    readonly property int _shadowRadius: 16
    readonly property int _shadowOffset: 4

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    // The control's content item does not follow its children, so the size is taken from them here.
    // Read through the content item: reading the control's own child list inside a binding loops.
    function _largestChild(dimension) {
        const children = contentItem.children
        let largest = 0
        for (let i = 0; i < children.length; ++i)
            largest = Math.max(largest, children[i][dimension])
        return largest
    }

    function _borderColor() {
        return Qt.colorEqual(accentColor, "transparent") ? _t("stroke") : accentColor
    }

    hoverEnabled: hoverable
    padding: _t("spaceLg")
    implicitWidth: _largestChild("implicitWidth") + leftPadding + rightPadding
    implicitHeight: _largestChild("implicitHeight") + topPadding + bottomPadding
    scale: _hovered ? _hoverScale : 1.0

    Behavior on scale {
        NumberAnimation { duration: root._hoverDuration }
    }

    background: Item {
        Rectangle {
            id: fill
            anchors.fill: parent
            radius: root._t("radiusMd")
            color: root._t("surface")
            border.color: root._borderColor()
            border.width: 1
            layer.enabled: root.elevated
            layer.effect: DropShadow {
                transparentBorder: true
                verticalOffset: root._shadowOffset
                radius: root._shadowRadius
                samples: 2 * root._shadowRadius + 1
                color: Qt.rgba(0, 0, 0, root._t("shadowOpacity"))
            }
        }

        Rectangle {
            anchors.fill: parent
            anchors.margins: fill.border.width
            radius: fill.radius
            gradient: Gradient {
                GradientStop { position: 0.0; color: Qt.rgba(1, 1, 1, root._depthGlowAlpha) }
                GradientStop { position: 1.0; color: "transparent" }
            }
        }

        Rectangle {
            anchors.fill: parent
            radius: fill.radius
            color: root._t("surfaceHover")
            opacity: root._hovered ? root._hoverOverlayOpacity : 0
            visible: opacity > 0

            Behavior on opacity {
                NumberAnimation { duration: root._hoverDuration }
            }
        }

        // Sets the cursor only: it takes no buttons, so presses reach the content.
        MouseArea {
            anchors.fill: parent
            visible: root.hoverable
            acceptedButtons: Qt.NoButton
            cursorShape: Qt.PointingHandCursor
        }
    }
}
