// A face-up mini card for long lists: the face, border and corner index of a mini PlayingCard, built from plain
// items. Its shadow is a rectangle under the face rather than an effect layer, which a list of hundreds of rows
// cannot afford to create and update on every change.
import QtQuick
import Kelvane

Item {
    id: root

    required property var theme
    property string rank: ""
    property string suit: ""
    property real sizeScale: 1.0

    readonly property var _suitSymbols: ({ s: "♠", h: "♥", d: "♦", c: "♣" })
    readonly property string _suitKey: suit.toLowerCase()
    readonly property real _scale: Math.max(0.1, sizeScale)
    // The sizes of a mini PlayingCard, so that both kinds line up.
    readonly property int _baseWidth: 32
    readonly property int _baseHeight: 44
    readonly property int _cornerMargin: 3
    readonly property int _rankSize: 14
    readonly property int _symbolSize: 12
    readonly property real _faceShade: 1.03
    // The shadow reaches this far below the face and half as far to each side, like a small blurred drop shadow.
    readonly property int _shadowReach: 2
    readonly property real _shadowStrength: 0.6

    function _px(size) {
        return Math.max(1, Math.round(size * _scale))
    }

    implicitWidth: _baseWidth * _scale
    implicitHeight: _baseHeight * _scale

    Rectangle {
        objectName: "shadow"
        x: -root._shadowReach / 2
        y: 0
        width: root.width + root._shadowReach
        height: root.height + root._shadowReach
        radius: root.theme.radiusSm + root._shadowReach / 2
        color: Qt.rgba(0, 0, 0, root.theme.shadowOpacity * root._shadowStrength)
    }

    Rectangle {
        objectName: "face"
        anchors.fill: parent
        radius: root.theme.radiusSm
        border.color: root.theme.cardBorder
        border.width: 1
        gradient: Gradient {
            GradientStop { position: 0.0; color: root.theme.cardFace }
            GradientStop { position: 1.0; color: Qt.darker(root.theme.cardFace, root._faceShade) }
        }
    }

    CardCorner {
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.margins: root._px(root._cornerMargin)
        rank: root.rank
        symbol: root._suitSymbols[root._suitKey] || ""
        color: root.theme.suitColor(root._suitKey)
        rankSize: root._px(root._rankSize)
        symbolSize: root._px(root._symbolSize)
    }
}
