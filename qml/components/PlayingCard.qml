// One playing card: its face, its back, or an empty slot waiting for a card.
import QtQuick
import Qt5Compat.GraphicalEffects

Item {
    id: root

    property var theme: null
    property string rank: ""
    property string suit: ""
    property bool faceDown: false
    property bool selected: false
    property bool disabled: false
    property bool mini: false
    property bool hoverable: true
    property real sizeScale: 1.0
    property bool enableHoverScale: true

    // Dark values used when the card is shown without a theme.
    readonly property var _fallback: ({
        cardFace: "#FFFEF5",
        cardBack: "#1C4B82",
        cardBorder: "#30363D",
        accent: "#3FB950",
        textFaint: "#6E7681",
        text: "#F0F6FC",
        suitSpades: "#1F2937",
        suitHearts: "#F85149",
        suitDiamonds: "#58A6FF",
        suitClubs: "#3FB950",
        radiusSm: 8,
        shadowOpacity: 0.5
    })
    readonly property var _suitSymbols: ({ s: "♠", h: "♥", d: "♦", c: "♣" })
    readonly property var _suitTokens: ({ s: "suitSpades", h: "suitHearts", d: "suitDiamonds", c: "suitClubs" })
    readonly property string _suitKey: suit.toLowerCase()
    readonly property bool _showsFace: !faceDown && rank !== "" && _suitSymbols[_suitKey] !== undefined
    readonly property bool _showsSlot: !faceDown && !_showsFace
    readonly property real _scale: Math.max(0.1, sizeScale)
    readonly property bool _hovered: hoverable && !disabled && mouseArea.containsMouse
    readonly property real _hoverScale: 1.05
    readonly property int _hoverDuration: 100
    readonly property real _disabledOpacity: 0.4
    readonly property real _faceShade: 1.03
    readonly property real _hoverShadeAlpha: 0.05
    readonly property real _backLineAlpha: 0.1
    readonly property int _backLineSpacing: 8
    readonly property real _slotBorderOpacity: 0.5
    readonly property int _selectedBorderWidth: 2

    signal clicked()

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    function _suitColor() {
        if (theme)
            return theme.suitColor(_suitKey)
        const token = _suitTokens[_suitKey]
        return _fallback[token === undefined ? "text" : token]
    }

    function _px(size) {
        return Math.max(1, Math.round(size * _scale))
    }

    function _paintBack(canvas) {
        const ctx = canvas.getContext("2d")
        const r = Math.min(_t("radiusSm"), canvas.width / 2, canvas.height / 2)
        ctx.reset()
        ctx.save()
        ctx.beginPath()
        ctx.roundedRect(0, 0, canvas.width, canvas.height, r, r)
        ctx.clip()
        ctx.strokeStyle = Qt.rgba(1, 1, 1, _backLineAlpha)
        ctx.lineWidth = 1
        ctx.beginPath()
        for (let d = -canvas.height; d < canvas.width; d += _backLineSpacing) {
            ctx.moveTo(d, canvas.height)
            ctx.lineTo(d + canvas.height, 0)
        }
        ctx.stroke()
        ctx.restore()
    }

    implicitWidth: (mini ? 32 : 52) * _scale
    implicitHeight: (mini ? 44 : 72) * _scale
    opacity: disabled ? _disabledOpacity : 1.0
    scale: enableHoverScale && _hovered ? _hoverScale : 1.0

    Behavior on scale {
        NumberAnimation { duration: root._hoverDuration }
    }

    Item {
        id: face
        objectName: "face"
        anchors.fill: parent
        visible: root._showsFace

        Rectangle {
            id: faceFill
            anchors.fill: parent
            radius: root._t("radiusSm")
            border.color: root._t("cardBorder")
            border.width: 1
            gradient: Gradient {
                GradientStop { position: 0.0; color: root._t("cardFace") }
                GradientStop { position: 1.0; color: Qt.darker(root._t("cardFace"), root._faceShade) }
            }
            layer.enabled: face.visible
            layer.effect: DropShadow {
                transparentBorder: true
                verticalOffset: 1
                radius: 3
                samples: 7
                color: Qt.rgba(0, 0, 0, root._t("shadowOpacity"))
            }
        }

        CardCorner {
            anchors.left: parent.left
            anchors.top: parent.top
            anchors.margins: root._px(root.mini ? 3 : 5)
            rank: root.rank
            symbol: root._suitSymbols[root._suitKey] || ""
            color: root._suitColor()
            rankSize: root._px(root.mini ? 14 : 15)
            symbolSize: root._px(12)
        }

        Text {
            objectName: "centreSuit"
            anchors.centerIn: parent
            visible: !root.mini
            text: root._suitSymbols[root._suitKey] || ""
            color: root._suitColor()
            font.pixelSize: root._px(26)
        }

        CardCorner {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.margins: root._px(5)
            visible: !root.mini
            rotation: 180
            rank: root.rank
            symbol: root._suitSymbols[root._suitKey] || ""
            color: root._suitColor()
            rankSize: root._px(15)
            symbolSize: root._px(12)
        }

        Rectangle {
            anchors.fill: parent
            radius: faceFill.radius
            color: Qt.rgba(0, 0, 0, root._hoverShadeAlpha)
            visible: root._hovered
        }
    }

    Rectangle {
        objectName: "back"
        anchors.fill: parent
        visible: root.faceDown
        radius: root._t("radiusSm")
        color: root._t("cardBack")
        border.color: root._t("cardBorder")
        border.width: 1

        Canvas {
            id: backPattern
            anchors.fill: parent
            onPaint: root._paintBack(backPattern)
            onWidthChanged: requestPaint()
            onHeightChanged: requestPaint()
        }
    }

    Item {
        objectName: "slot"
        anchors.fill: parent
        visible: root._showsSlot

        Rectangle {
            anchors.fill: parent
            radius: root._t("radiusSm")
            color: "transparent"
            border.color: root._t("textFaint")
            border.width: 1
            opacity: root._slotBorderOpacity
        }

        Text {
            anchors.centerIn: parent
            visible: !root.mini
            text: qsTr("?")
            color: root._t("textFaint")
            font.pixelSize: root._px(20)
            font.bold: true
        }
    }

    Rectangle {
        objectName: "selection"
        anchors.fill: parent
        anchors.margins: -root._selectedBorderWidth
        visible: root.selected
        radius: root._t("radiusSm") + root._selectedBorderWidth
        color: "transparent"
        border.color: root._t("accent")
        border.width: root._selectedBorderWidth
    }

    MouseArea {
        id: mouseArea
        anchors.fill: parent
        enabled: !root.disabled
        hoverEnabled: root.hoverable
        cursorShape: root.hoverable ? Qt.PointingHandCursor : Qt.ArrowCursor
        onClicked: root.clicked()
    }
}
