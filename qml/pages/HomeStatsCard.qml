// The Play vs. Solution card: hands, accuracy and average EV loss, today's beside the total, and a guarded
// way to clear them all.
import QtQuick
import QtQuick.Dialogs
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    // The controller's play statistics map; missing keys count as no hands.
    property var stats: ({})

    readonly property string _dash: qsTranslate("HomePage", "—")
    readonly property string _joiner: " / "
    readonly property int _evDecimals: 3
    // Low enough to sit in the heading row without making it taller than the other cards' headings.
    readonly property int _clearButtonHeight: 28

    signal clearConfirmed()

    function _number(key) {
        const value = stats ? Number(stats[key]) : NaN
        return Number.isFinite(value) ? value : 0
    }

    // A period's figure, or the dash when that period has no hands or the figure is not a number.
    function _figure(hands, value, format) {
        const number = Number(value)
        if (hands <= 0 || value === undefined || value === null || !Number.isFinite(number))
            return _dash
        return format(number)
    }

    function _pair(todayText, totalText) {
        return todayText + _joiner + totalText
    }

    function _handsText() {
        return _pair(String(_number("todayHands")), String(_number("totalHands")))
    }

    function _periodFigure(period, key, format) {
        return _figure(_number(period + "Hands"), stats ? stats[period + key] : undefined, format)
    }

    function _accuracyText() {
        const format = value => String(Math.round(value))
        return _pair(_periodFigure("today", "AccuracyPct", format), _periodFigure("total", "AccuracyPct", format))
    }

    function _evLossText() {
        const format = value => value.toFixed(_evDecimals)
        return _pair(_periodFigure("today", "AvgEvLoss", format), _periodFigure("total", "AvgEvLoss", format))
    }

    function _askToClear() {
        clearDialog.open()
    }

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: card.theme.spaceMd

        RowLayout {
            Layout.fillWidth: true
            spacing: card.theme.spaceSm

            HomeCardTitle {
                Layout.fillWidth: true
                theme: card.theme
                type: card.type
                iconName: "gamepad"
                text: qsTranslate("HomePage", "Play vs. Solution")
            }

            SecondaryButton {
                objectName: "clearStatsButton"
                Layout.preferredHeight: card._clearButtonHeight
                theme: card.theme
                danger: true
                text: qsTranslate("HomePage", "Clear")
                onClicked: card._askToClear()
            }
        }

        StatCard {
            objectName: "handsStat"
            Layout.fillWidth: true
            theme: card.theme
            label: qsTranslate("HomePage", "Hands (Today / Total)")
            value: card._handsText()
        }

        StatCard {
            objectName: "accuracyStat"
            Layout.fillWidth: true
            theme: card.theme
            label: qsTranslate("HomePage", "Accuracy (Today / Total)")
            value: card._accuracyText()
            unit: qsTranslate("HomePage", "%")
        }

        StatCard {
            objectName: "evLossStat"
            Layout.fillWidth: true
            theme: card.theme
            label: qsTranslate("HomePage", "Avg EV Loss (Today / Total)")
            value: card._evLossText()
            unit: qsTranslate("HomePage", "EV")
        }
    }

    MessageDialog {
        id: clearDialog

        objectName: "clearStatsDialog"
        title: qsTranslate("HomePage", "Clear Play vs. Solution Stats")
        text: qsTranslate("HomePage", "Clear all Play vs. Solution statistics (today + total)?")
        buttons: MessageDialog.Ok | MessageDialog.Cancel
        onAccepted: card.clearConfirmed()
    }
}
