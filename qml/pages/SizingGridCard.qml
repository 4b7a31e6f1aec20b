// One player's bet and raise sizes by street, the all-in switches, OOP's "Don't donk" row, and under the grid the
// all-in when the jam is small against the pot. Texts are stored as typed: the solve reports a fault in them.
// Values are read from `settings` by property name, and each edit leaves as settingEdited(property name, value).
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    // "oop" or "ip".
    property string player: "oop"
    // The object holding the properties, such as oopFlopBetSizesText.
    property var settings: null
    property int streetColumnWidth: 70

    readonly property var _streets: ["Flop", "Turn", "River"]
    readonly property var _streetTitles: [qsTranslate("ProjectPage", "Flop"), qsTranslate("ProjectPage", "Turn"),
        qsTranslate("ProjectPage", "River")]
    readonly property bool _isOop: player === "oop"
    // Only the out-of-position player can lead into the caller, so only OOP has the donk row.
    readonly property var _rowLabels: [qsTranslate("ProjectPage", "Bet sizes (%)"),
        qsTranslate("ProjectPage", "Raise sizes (%)"), qsTranslate("ProjectPage", "Add All-In")]
        .concat(_isOop ? [qsTranslate("ProjectPage", "Don't donk")] : [])
    readonly property var _textCells: _cells(["BetSizesText", "RaiseSizesText"], 1)
    readonly property var _switchCells: _cells(_isOop ? ["AddAllIn", "DontDonk"] : ["AddAllIn"], 3)
    readonly property string _jamEnabledKey: player + "AddAllInIfJamLtEnabled"
    readonly property string _jamPctKey: player + "AddAllInIfJamLtPct"
    readonly property int _titleIconSize: 16
    readonly property int _jamDecimals: 3
    readonly property real _jamMaxPct: 1000.0
    readonly property real _disabledOpacity: 0.5
    // Narrower than a street column: the jam row is the widest line of the card.
    readonly property int _jamFieldWidth: 56

    signal settingEdited(string key, var value)

    // One cell per street and suffix, placed from grid row `firstRow` on (row 0 holds the street names).
    function _cells(suffixes, firstRow) {
        const cells = []
        for (let r = 0; r < suffixes.length; ++r) {
            for (let c = 0; c < _streets.length; ++c)
                cells.push({key: player + _streets[c] + suffixes[r], row: firstRow + r, column: c + 1})
        }
        return cells
    }

    function _value(key, fallback) {
        return settings && settings[key] !== undefined ? settings[key] : fallback
    }

    function _title() {
        return _isOop ? qsTranslate("ProjectPage", "OOP Sizing") : qsTranslate("ProjectPage", "IP Sizing")
    }

    function _placeholder(key) {
        return key.endsWith("BetSizesText") ? qsTranslate("ProjectPage", "33, 75, 125")
                                             : qsTranslate("ProjectPage", "75, 125, 200")
    }

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceMd

        RowLayout {
            spacing: card.theme.spaceSm

            Icon {
                name: "sliders"
                size: card._titleIconSize
                color: card.theme.textMuted
            }

            Text {
                objectName: "title"
                text: card._title()
                color: card.theme.text
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.headingSm
                font.weight: card.type.weightSemibold
            }
        }

        GridLayout {
            columns: 4
            columnSpacing: card.theme.spaceSm
            rowSpacing: card.theme.spaceSm

            Repeater {
                model: card._streetTitles

                delegate: Text {
                    required property string modelData
                    required property int index

                    Layout.row: 0
                    Layout.column: index + 1
                    Layout.preferredWidth: card.streetColumnWidth
                    text: modelData
                    color: card.theme.textMuted
                    font.family: card.theme.fontFamily
                    font.pixelSize: card.type.labelMd
                    font.weight: card.type.weightSemibold
                    horizontalAlignment: Text.AlignHCenter
                }
            }

            Repeater {
                model: card._rowLabels

                delegate: Text {
                    required property string modelData
                    required property int index

                    Layout.row: index + 1
                    Layout.column: 0
                    Layout.fillWidth: true
                    text: modelData
                    color: card.theme.textMuted
                    font.family: card.theme.fontFamily
                    font.pixelSize: card.type.labelLg
                    font.weight: card.type.weightMedium
                }
            }

            Repeater {
                model: card._textCells

                delegate: ThemedTextField {
                    required property var modelData

                    objectName: modelData.key
                    Layout.row: modelData.row
                    Layout.column: modelData.column
                    Layout.preferredWidth: card.streetColumnWidth
                    theme: card.theme
                    font.family: card.theme.fontMono
                    font.pixelSize: card.type.labelMd
                    leftPadding: card.theme.spaceSm
                    rightPadding: card.theme.spaceSm
                    elideWhenIdle: true
                    placeholderText: card._placeholder(modelData.key)
                    text: card._value(modelData.key, "")
                    onEditingFinished: card.settingEdited(modelData.key, text)
                }
            }

            Repeater {
                model: card._switchCells

                delegate: ToggleSwitch {
                    required property var modelData

                    objectName: modelData.key
                    Layout.row: modelData.row
                    Layout.column: modelData.column
                    Layout.alignment: Qt.AlignHCenter
                    theme: card.theme
                    checked: card._value(modelData.key, false)
                    onToggled: card.settingEdited(modelData.key, checked)
                }
            }
        }

        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            color: card.theme.strokeLight
        }

        RowLayout {
            spacing: card.theme.spaceSm

            ToggleSwitch {
                id: jamSwitch
                objectName: card._jamEnabledKey
                theme: card.theme
                checked: card._value(card._jamEnabledKey, false)
                onToggled: card.settingEdited(card._jamEnabledKey, checked)
            }

            Text {
                text: qsTranslate("ProjectPage", "Add all-in if jam less than")
                color: card.theme.textMuted
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.labelLg
                font.weight: card.type.weightMedium
            }

            SettingNumberField {
                objectName: card._jamPctKey
                Layout.preferredWidth: card._jamFieldWidth
                theme: card.theme
                enabled: jamSwitch.checked
                opacity: enabled ? 1.0 : card._disabledOpacity
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.labelMd
                leftPadding: card.theme.spaceSm
                rightPadding: card.theme.spaceSm
                value: card._value(card._jamPctKey, 0.0)
                decimals: card._jamDecimals
                minimum: 0.0
                maximum: card._jamMaxPct
                fallback: 0.0
                storesWhileTyping: true
                placeholderText: qsTranslate("ProjectPage", "e.g. 30")
                onValueEdited: value => card.settingEdited(card._jamPctKey, value)
            }

            Text {
                text: qsTranslate("ProjectPage", "% pot")
                color: card.theme.textMuted
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.labelLg
            }
        }
    }
}
