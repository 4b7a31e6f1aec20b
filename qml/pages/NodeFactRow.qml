// One line of the node facts: what it is on the left, the amount on the right.
import QtQuick
import QtQuick.Layouts

RowLayout {
    id: row

    property var theme: null
    property var type: null
    property string name: ""
    property string label: ""
    property string value: ""

    Layout.fillWidth: true

    ResultsText {
        Layout.fillWidth: true
        theme: row.theme
        type: row.type
        text: row.label
        color: row.theme.textMuted
    }

    ResultsText {
        objectName: "fact_" + row.name
        theme: row.theme
        type: row.type
        text: row.value
        font.family: row.theme.fontMono
        font.weight: row.type.weightSemibold
    }
}
