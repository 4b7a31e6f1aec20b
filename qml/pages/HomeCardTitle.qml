// A Home card's heading: a muted icon beside the card's title.
import QtQuick
import QtQuick.Layouts
import Kelvane

RowLayout {
    id: title

    property var theme: null
    property var type: null
    property string iconName: ""
    property string text: ""

    readonly property int _iconSize: 16

    spacing: theme.spaceSm

    Icon {
        theme: title.theme
        name: title.iconName
        size: title._iconSize
        color: title.theme.textMuted
    }

    Text {
        Layout.fillWidth: true
        text: title.text
        color: title.theme.text
        font.family: title.theme.fontFamily
        font.pixelSize: title.type.headingSm
        font.weight: title.type.weightSemibold
    }
}
