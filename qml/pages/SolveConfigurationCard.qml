// The spot about to be solved, at a glance: the board and chips with the flop sizes, target, rake and ranges.
import QtQuick
import QtQuick.Layouts
import Kelvane

Card {
    id: card

    property var type: null
    property var solvePage: null

    readonly property real _rangeTintAlpha: 0.15
    readonly property int _titleIconSize: 16
    // The chip's own label size and padding: a range chip's text is cut to fit inside the card.
    readonly property int _chipLabelSize: 12
    readonly property int _chipPadding: 16

    function _orDash(text) {
        const trimmed = String(text).trim()
        return trimmed !== "" ? trimmed : qsTranslate("SolvePage", "—")
    }

    function flopText() {
        return qsTranslate("SolvePage", "Flop: OOP %1 | IP %2").arg(_orDash(solvePage.oopFlopBetSizesText))
                                          .arg(_orDash(solvePage.ipFlopBetSizesText))
    }

    function targetText() {
        return qsTranslate("SolvePage", "Target: %1% (≈ %2)").arg(solvePage.targetExploitability)
                                         .arg(solvePage._amountText(solvePage.targetExploitabilityAmount()))
    }

    function rakeText() {
        return qsTranslate("SolvePage", "Rake: %1% (cap %2)").arg(solvePage.rakePercent).arg(solvePage.rakeCap)
    }

    function _rangeOrFull(text) {
        const trimmed = String(text).trim()
        return trimmed !== "" ? trimmed : qsTranslate("SolvePage", "100%")
    }

    function oopRangeText() {
        return qsTranslate("SolvePage", "OOP: %1").arg(_rangeOrFull(solvePage.oopRangeText))
    }

    function ipRangeText() {
        return qsTranslate("SolvePage", "IP: %1").arg(_rangeOrFull(solvePage.ipRangeText))
    }

    ColumnLayout {
        id: column

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
                text: qsTranslate("SolvePage", "Configuration")
                color: card.theme.text
                font.family: card.theme.fontFamily
                font.pixelSize: card.type.headingSm
                font.weight: card.type.weightSemibold
            }
        }

        BoardDisplay {
            objectName: "configurationBoard"
            theme: card.theme
            boardText: card.solvePage.boardText
            compact: true
        }

        Flow {
            Layout.fillWidth: true
            spacing: card.theme.spaceSm

            Chip {
                objectName: "flopChip"
                theme: card.theme
                text: card.flopText()
            }

            Chip {
                objectName: "targetChip"
                theme: card.theme
                text: card.targetText()
            }

            Chip {
                objectName: "rakeChip"
                theme: card.theme
                text: card.rakeText()
            }
        }

        Chip {
            objectName: "oopRangeChip"
            theme: card.theme
            text: oopMetrics.elidedText
            tint: card.theme.withOpacity(card.theme.actionBet, card._rangeTintAlpha)

            TextMetrics {
                id: oopMetrics

                font.pixelSize: card._chipLabelSize
                text: card.oopRangeText()
                elide: Text.ElideRight
                elideWidth: column.width - card._chipPadding
            }
        }

        Chip {
            objectName: "ipRangeChip"
            theme: card.theme
            text: ipMetrics.elidedText
            tint: card.theme.withOpacity(card.theme.info, card._rangeTintAlpha)

            TextMetrics {
                id: ipMetrics

                font.pixelSize: card._chipLabelSize
                text: card.ipRangeText()
                elide: Text.ElideRight
                elideWidth: column.width - card._chipPadding
            }
        }
    }
}
