// Photographs the range editor's parts in the dark and the light theme, one PNG per section and theme, into the
// folder named by KELVANE_SCREENSHOT_DIR: a range card with a half-painted range and one hovered cell, the
// strategy grid with mixed actions filled from the bottom and spread across, and the lighter stand-alone editor.
// Run on its own: kelvane_qml_tests -input tests/qml/gallery/RangeGallery.qml
import QtQuick
import QtTest
import Kelvane
import "../../../qml/components/RangeText.js" as RangeText

Item {
    id: root

    width: 1900
    height: 1400

    TestCase {
        id: testCase

        readonly property var sectionNames: ["range_panel", "matrix_vertical", "matrix_span", "range_editor"]
        readonly property string halfPaintedRange: "QQ+, AKs, AQs:0.5, AJs:0.5, KQs:0.5, A5s-A2s:0.5, AKo, "
                                                   + "AQo:0.5, JJ-77:0.5, T9s:0.25, 98s:0.75, 87s:0.5, 76s:0.5"
        readonly property var actionTypes: ["fold", "check", "bet 33%", "bet 75%", "raise 200%"]

        name: "RangeGallery"
        when: windowShown

        Theme { id: darkTheme }
        Theme { id: lightTheme; dark: false }

        Component {
            id: sheetComponent

            Rectangle {
                id: sheet

                property var theme: null
                property var weights: ({})
                property var probs: ({})

                anchors.fill: parent
                color: theme.bg0

                Flow {
                    anchors.fill: parent
                    anchors.margins: 16
                    spacing: 16

                    GallerySection {
                        objectName: "range_panel"
                        theme: sheet.theme

                        RangePanel {
                            objectName: "panel"
                            theme: sheet.theme
                            player: "oop"
                            clickWeightPct: 50
                            rangeText: testCase.halfPaintedRange
                        }
                    }

                    GallerySection {
                        objectName: "matrix_vertical"
                        theme: sheet.theme

                        HandMatrix {
                            theme: sheet.theme
                            cellSize: 28
                            weightDisplayMode: "verticalFill"
                            weights: sheet.weights
                            actionTypes: testCase.actionTypes
                            actionProbs: sheet.probs
                        }
                    }

                    GallerySection {
                        objectName: "matrix_span"
                        theme: sheet.theme

                        HandMatrix {
                            theme: sheet.theme
                            cellSize: 36
                            weights: sheet.weights
                            actionTypes: testCase.actionTypes
                            actionProbs: sheet.probs
                        }
                    }

                    GallerySection {
                        objectName: "range_editor"
                        theme: sheet.theme

                        RangeEditor {
                            theme: sheet.theme
                            label: "IP Range"
                            rangeText: "TT+, AQs+, KQs, AKo, JTs:0.5, 99, 88, 77, A5s, A4s, KJs, QJs, T9s, 98s, 87s"
                        }
                    }
                }
            }
        }

        function save(item, path) {
            let saved = false
            verify(item.grabToImage(result => { saved = result.saveToFile(path) }))
            tryVerify(() => saved, 5000, "could not write " + path)
        }

        // A strategy that changes from hand to hand, with some hands only partly in the range.
        function strategy() {
            const weights = {}
            const probs = {}
            RangeText.allHands().forEach((hand, i) => {
                const row = Math.floor(i / 13)
                const col = i % 13
                weights[hand] = ((row * 5 + col * 3) % 10 + 1) / 10
                const a = ((row + 2 * col) % 5) / 10
                const b = ((3 * row + col) % 4) / 10
                probs[hand] = [a / 2, b, (1 - a - b) / 2, (1 - a - b) / 2, a / 2]
            })
            return {weights: weights, probs: probs}
        }

        function test_photograph_data() {
            return [{tag: "dark", theme: darkTheme}, {tag: "light", theme: lightTheme}]
        }

        function test_photograph(data) {
            if (screenshotDirectory === "")
                skip("KELVANE_SCREENSHOT_DIR is not set")
            const spot = strategy()
            const sheet = createTemporaryObject(sheetComponent, root,
                                                {theme: data.theme, weights: spot.weights, probs: spot.probs})
            // One hovered cell, lifted and ringed, in the range card.
            const hovered = findChild(findChild(sheet, "panel").matrix, "cell_KQs")
            mouseMove(hovered, hovered.width / 2, hovered.height / 2)
            wait(600)
            for (const name of sectionNames)
                save(findChild(sheet, name), screenshotDirectory + "/range_" + data.tag + "_" + name + ".png")
        }
    }
}
