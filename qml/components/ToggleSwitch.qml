// An on/off switch: a rounded track with a sliding thumb and a focus ring for keyboard users.
import QtQuick
import QtQuick.Controls

Switch {
    id: root

    property var theme: null

    // Dark values used when the switch is shown without a theme.
    readonly property var _fallback: ({
        accent: "#3FB950",
        accentMuted: Qt.darker("#3FB950", 1.6),
        surface3: "#2D333B",
        stroke: "#30363D",
        strokeFocus: "#58A6FF",
        text: "#F0F6FC",
        durationFast: 100
    })
    readonly property int _trackHeight: 18
    readonly property int _thumbSize: 14
    readonly property int _thumbInset: 3
    readonly property int _focusRingWidth: 2
    // The ring stands this much larger than the track, half of it on each side.
    readonly property int _focusRingGrowth: 6

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    implicitWidth: 44
    implicitHeight: 24
    padding: 0
    spacing: 0

    indicator: Item {
        anchors.fill: parent

        Rectangle {
            objectName: "focusRing"
            anchors.centerIn: track
            width: track.width + root._focusRingGrowth
            height: track.height + root._focusRingGrowth
            radius: height / 2
            color: "transparent"
            border.color: root._t("strokeFocus")
            border.width: root._focusRingWidth
            visible: root.visualFocus
        }

        Rectangle {
            id: track
            objectName: "track"
            anchors.centerIn: parent
            width: parent.width - root._focusRingGrowth
            height: root._trackHeight
            radius: height / 2
            color: root.checked ? root._t("accent") : root._t("surface3")
            border.color: root.checked ? root._t("accentMuted") : root._t("stroke")
            border.width: 1

            Rectangle {
                objectName: "thumb"
                anchors.verticalCenter: parent.verticalCenter
                x: root.checked ? track.width - width - root._thumbInset : root._thumbInset
                width: root._thumbSize
                height: root._thumbSize
                radius: height / 2
                color: root._t("text")

                Behavior on x {
                    NumberAnimation { duration: root._t("durationFast") }
                }
            }
        }
    }

    contentItem: Item {}
}
