// One row of the game tree: the action that leads to a node, tinted by that action, with who acts there, the pot,
// the action's frequency and its EV, and a button that opens or closes the node's children.
import QtQuick
import QtQuick.Layouts
import Kelvane

Rectangle {
    id: root

    property var theme: null
    // "decision", "chance" or "terminal".
    property string nodeType: "decision"
    property string player: ""
    property string action: ""
    property string actionType: ""
    property real pot: 0
    property real ev: 0
    // A share from 0 to 1; negative hides it.
    property real frequency: -1
    property bool selected: false
    property bool expanded: false
    property bool hasChildren: false
    // Known for the tree's bookkeeping; the panel shows one level per row, so it does not indent.
    property int depth: 0

    readonly property Theme _darkTheme: Theme {}
    readonly property var _theme: theme ? theme : _darkTheme
    readonly property Typography _type: Typography {}

    // Ink for fills light enough that the theme's text would fade: the theme follows the page, not this fill,
    // and a dark theme's light text would vanish on a bright action colour.
    readonly property color _inkOnLight: "#0B0F14"
    readonly property color _mutedInkOnLight: "#2D333B"
    readonly property real _lightFillBrightness: 0.62
    readonly property real _chanceTint: 0.22
    readonly property real _decisionTint: 0.28
    // A bet or raise with its size, such as "Bet 75%": its shade tells the sizes of one node apart.
    readonly property var _sizedActionPattern: /^(bet|raise)\s+\d*\.?\d+\s*%/i
    readonly property real _hoverScale: 1.02
    readonly property int _toggleSize: 20
    readonly property int _dotSize: 8
    readonly property int _chipHeight: 20
    readonly property int _amountDecimals: 2
    readonly property int _horizontalPadding: 10

    readonly property color _actionColor: _actionColorFor(action, actionType)
    readonly property color _fill: _fillFor(nodeType, _actionColor)
    readonly property bool _showsToggle: nodeType === "decision" && hasChildren
    readonly property bool _hovered: nodeArea.containsMouse

    signal clicked()
    signal toggleExpand()

    function _isSizedBetOrRaise(name) {
        return _sizedActionPattern.test(String(name))
    }

    function _actionColorFor(name, type) {
        return _isSizedBetOrRaise(name) ? _theme.actionColor(name) : _theme.actionColor(type)
    }

    // Colour values are used as they are: a trip through text would round them to eight bits.
    function _rgb(value) {
        return typeof value === "string" ? Qt.color(value) : value
    }

    // The share `amount` of `tint` over `base`, channel by channel, opaque.
    function _mix(base, tint, amount) {
        const from = _rgb(base)
        const to = _rgb(tint)
        return Qt.rgba(from.r + (to.r - from.r) * amount, from.g + (to.g - from.g) * amount,
                       from.b + (to.b - from.b) * amount, 1)
    }

    function _fillFor(type, actionColor) {
        if (type === "terminal")
            return _theme.surface3
        if (type === "chance")
            return _mix(_theme.surface2, _theme.gold, _chanceTint)
        return _mix(_theme.surface2, actionColor, _decisionTint)
    }

    function _brightness(color) {
        const c = _rgb(color)
        return 0.2126 * c.r + 0.7152 * c.g + 0.0722 * c.b
    }

    function _isLight(color) {
        return _brightness(color) >= _lightFillBrightness
    }

    function _textOn(fill) {
        return _isLight(fill) ? _inkOnLight : _theme.text
    }

    function _mutedTextOn(fill) {
        return _isLight(fill) ? _mutedInkOnLight : _theme.textMuted
    }

    // The lighter of the theme's two inks: a saturated chip is dark enough for it in either mode.
    function _lightInk() {
        return _theme.dark ? _theme.text : _theme.textInverse
    }

    function _chipTextOn(fill) {
        return _isLight(fill) ? _inkOnLight : _lightInk()
    }

    function _label() {
        if (nodeType === "terminal")
            return qsTr("Terminal")
        if (nodeType === "chance")
            return player !== "" ? player : qsTr("Deal")
        return player
    }

    // Pots and EVs show at most two decimals, with trailing zeros dropped: 180, 12.5, 3.14.
    function _formatAmount(value) {
        return String(Number(value.toFixed(_amountDecimals)))
    }

    function _potText() {
        return pot > 0 ? qsTr("Pot: %1").arg(_formatAmount(pot)) : ""
    }

    function _frequencyText() {
        return frequency >= 0 ? qsTr("Freq: %1%").arg(Math.round(frequency * 100)) : ""
    }

    function _evText() {
        if (!isFinite(ev) || ev === 0)
            return ""
        return qsTr("EV: %1%2").arg(ev >= 0 ? "+" : "").arg(_formatAmount(ev))
    }

    function _dotColor() {
        if (nodeType === "terminal")
            return _theme.textFaint
        if (nodeType === "chance")
            return _theme.gold
        return player === "OOP" ? _theme.actionBet : _theme.info
    }

    // Plain symbols, the same in every language.
    function _toggleText() {
        return expanded ? "−" : "+"
    }

    implicitWidth: 200
    implicitHeight: 48
    radius: _theme.radiusSm
    color: _fill
    border.color: selected ? _theme.accent : (_hovered ? _theme.strokeFocus : _theme.stroke)
    // The selected node keeps a heavier outline, so that it stands out from a hovered one.
    border.width: selected ? 2 : 1
    scale: _hovered ? _hoverScale : 1.0

    Behavior on scale {
        NumberAnimation { duration: root._theme.durationFast }
    }

    MouseArea {
        id: nodeArea
        objectName: "nodeArea"
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: root.clicked()

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: root._horizontalPadding
            anchors.rightMargin: root._horizontalPadding
            spacing: root._theme.spaceSm

            ColumnLayout {
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignVCenter
                spacing: 2

                RowLayout {
                    Layout.fillWidth: true
                    spacing: root._theme.spaceSm

                    Chip {
                        objectName: "actionChip"
                        visible: root.action !== ""
                        implicitHeight: root._chipHeight
                        theme: root._theme
                        text: root.action
                        tint: root._actionColor
                        stroke: root._actionColor
                        textColor: root._chipTextOn(root._actionColor)
                    }

                    Text {
                        objectName: "label"
                        Layout.fillWidth: true
                        text: root._label()
                        color: root._textOn(root._fill)
                        font.family: root._theme.fontFamily
                        font.pixelSize: root._type.labelMd
                        font.weight: Font.DemiBold
                        elide: Text.ElideRight
                    }
                }

                // When the row is short of room, the EV gives way first and is elided rather than cut.
                Row {
                    id: metaRow
                    Layout.fillWidth: true
                    // Sized by the node, not by its texts, so that eliding the EV cannot feed back into the width.
                    Layout.preferredWidth: 0
                    // In a node too narrow even for pot and frequency, they are cut rather than run into the button.
                    clip: true
                    visible: root._potText() !== "" || root._frequencyText() !== "" || root._evText() !== ""
                    spacing: root._theme.spaceSm

                    Text {
                        objectName: "potText"
                        visible: text !== ""
                        text: root._potText()
                        color: root._mutedTextOn(root._fill)
                        font.family: root._theme.fontFamily
                        font.pixelSize: root._type.labelSm
                    }

                    Text {
                        objectName: "frequencyText"
                        visible: text !== ""
                        text: root._frequencyText()
                        color: root._mutedTextOn(root._fill)
                        font.family: root._theme.fontFamily
                        font.pixelSize: root._type.labelSm
                    }

                    Text {
                        id: evText
                        objectName: "evText"
                        width: Math.max(0, Math.min(implicitWidth, metaRow.width - x))
                        visible: text !== ""
                        text: root._evText()
                        color: root.ev >= 0 ? root._theme.success : root._theme.danger
                        font.family: root._theme.fontFamily
                        font.pixelSize: root._type.labelSm
                        font.weight: Font.DemiBold
                        elide: Text.ElideRight
                    }
                }
            }

            Item {
                Layout.preferredWidth: root._toggleSize
                Layout.preferredHeight: root._toggleSize
                Layout.alignment: Qt.AlignVCenter

                Rectangle {
                    objectName: "toggleButton"
                    anchors.fill: parent
                    visible: root._showsToggle
                    radius: root._theme.radiusXs
                    color: toggleArea.containsMouse ? root._theme.surfaceHover : root._theme.surface
                    border.color: toggleArea.containsMouse ? root._theme.strokeFocus : root._theme.stroke
                    border.width: 1

                    Text {
                        objectName: "toggleText"
                        anchors.centerIn: parent
                        text: root._toggleText()
                        color: root._theme.text
                        font.family: root._theme.fontFamily
                        font.pixelSize: root._type.bodyMd
                        font.bold: true
                    }

                    MouseArea {
                        id: toggleArea
                        objectName: "toggleArea"
                        anchors.fill: parent
                        hoverEnabled: true
                        cursorShape: Qt.PointingHandCursor
                        onClicked: root.toggleExpand()
                    }
                }

                Rectangle {
                    objectName: "dot"
                    anchors.centerIn: parent
                    visible: !root._showsToggle
                    width: root._dotSize
                    height: root._dotSize
                    radius: root._dotSize / 2
                    color: root._dotColor()
                }
            }
        }
    }
}
