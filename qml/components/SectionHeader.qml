// A section's title with an optional status badge and a muted subtitle underneath.
import QtQuick
import QtQuick.Layouts

Item {
    id: root

    property var theme: null
    property string title: ""
    property string subtitle: ""
    property string badge: ""
    property color badgeColor: _t("accent")

    // Dark values used when the header is shown without a theme.
    readonly property var _fallback: ({
        accent: "#3FB950",
        text: "#F0F6FC",
        textMuted: "#8B949E"
    })
    readonly property int _titleSize: 20
    readonly property int _subtitleSize: 13
    readonly property real _subtitleLineHeight: 1.4
    readonly property int _badgeHeight: 22
    readonly property int _badgeTextSize: 11
    readonly property int _badgePadding: 10
    readonly property real _badgeFillAlpha: 0.15

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    implicitWidth: Math.max(titleRow.implicitWidth, subtitleText.visible ? subtitleText.implicitWidth : 0)
    implicitHeight: column.implicitHeight

    ColumnLayout {
        id: column
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        spacing: 4

        RowLayout {
            id: titleRow
            spacing: 10

            Text {
                objectName: "title"
                text: root.title
                color: root._t("text")
                font.pixelSize: root._titleSize
                font.bold: true
            }

            Rectangle {
                objectName: "badge"
                visible: root.badge !== ""
                implicitWidth: badgeText.implicitWidth + 2 * root._badgePadding
                implicitHeight: root._badgeHeight
                radius: height / 2
                color: Qt.rgba(root.badgeColor.r, root.badgeColor.g, root.badgeColor.b, root._badgeFillAlpha)
                border.color: root.badgeColor
                border.width: 1

                Text {
                    id: badgeText
                    anchors.centerIn: parent
                    text: root.badge
                    color: root.badgeColor
                    font.pixelSize: root._badgeTextSize
                    font.weight: Font.DemiBold
                }
            }
        }

        Text {
            id: subtitleText
            objectName: "subtitle"
            Layout.fillWidth: true
            visible: root.subtitle !== ""
            text: root.subtitle
            color: root._t("textMuted")
            font.pixelSize: root._subtitleSize
            lineHeight: root._subtitleLineHeight
            wrapMode: Text.WordWrap
        }
    }
}
