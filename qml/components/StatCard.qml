// One figure with its label and unit, and an optional up or down trend arrow.
import QtQuick

Rectangle {
    id: root

    property var theme: null
    property string label: ""
    property string value: ""
    property string unit: ""
    property string trend: ""
    property color accentColor: _t("accent")
    property bool compact: false

    // Dark values used when the card is shown without a theme.
    readonly property var _fallback: ({
        accent: "#3FB950",
        surface: "#1C2128",
        stroke: "#30363D",
        text: "#F0F6FC",
        textMuted: "#8B949E",
        success: "#3FB950",
        danger: "#F85149",
        radiusMd: 12
    })
    readonly property int _dotSize: 6
    readonly property int _labelSize: compact ? 10 : 11
    readonly property int _valueSize: compact ? 18 : 24
    readonly property int _unitSize: compact ? 12 : 14
    readonly property int _margin: compact ? 10 : 14
    readonly property int _dotGap: 6
    readonly property int _valueGap: 4

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    // Arrows are symbols, the same in every language.
    function _trendArrow() {
        if (trend === "up")
            return "↑"
        return trend === "down" ? "↓" : ""
    }

    function _trailingWidth() {
        const unitWidth = unit !== "" ? unitText.implicitWidth + _valueGap : 0
        const trendWidth = _trendArrow() !== "" ? trendText.implicitWidth + _valueGap : 0
        return unitWidth + trendWidth
    }

    implicitWidth: compact ? 120 : 160
    implicitHeight: compact ? 64 : 80
    radius: _t("radiusMd")
    color: _t("surface")
    border.color: _t("stroke")
    border.width: 1

    Column {
        id: column
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: root._margin
        anchors.rightMargin: root._margin
        spacing: root.compact ? 2 : 4

        Row {
            spacing: root._dotGap

            Rectangle {
                id: dot
                objectName: "dot"
                anchors.verticalCenter: parent.verticalCenter
                visible: !root.compact
                width: root._dotSize
                height: root._dotSize
                radius: root._dotSize / 2
                color: root.accentColor
            }

            Text {
                objectName: "label"
                width: column.width - (dot.visible ? dot.width + root._dotGap : 0)
                text: root.label.toUpperCase()
                color: root._t("textMuted")
                font.pixelSize: root._labelSize
                font.weight: Font.DemiBold
                font.letterSpacing: 0.5
                elide: Text.ElideRight
            }
        }

        Row {
            spacing: root._valueGap

            Text {
                id: valueText
                objectName: "value"
                // The value gives way to its unit and trend, which are short.
                width: Math.min(implicitWidth, column.width - root._trailingWidth())
                text: root.value
                color: root._t("text")
                font.pixelSize: root._valueSize
                font.bold: true
                elide: Text.ElideRight
            }

            Text {
                id: unitText
                objectName: "unit"
                anchors.baseline: valueText.baseline
                visible: root.unit !== ""
                text: root.unit
                color: root._t("textMuted")
                font.pixelSize: root._unitSize
            }

            Text {
                id: trendText
                objectName: "trend"
                anchors.baseline: valueText.baseline
                visible: text !== ""
                text: root._trendArrow()
                color: root.trend === "up" ? root._t("success") : root._t("danger")
                font.pixelSize: root._unitSize
                font.bold: true
            }
        }
    }
}
