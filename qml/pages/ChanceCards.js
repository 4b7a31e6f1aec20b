// Turn and river cards in the Results tree: the board along the walked path, and the card a click stands for
// when the solver kept one representative of suit-symmetric cards.
.pragma library

const suitOrder = ["s", "h", "d", "c"]

function compactBoard(text) {
    return String(text).replace(/\s+/g, "")
}

// levels: [{name (selected action name or ""), override (display card or "")}]
function boardFromSelections(baseBoard, levels) {
    let board = compactBoard(baseBoard)
    for (let i = 0; i < levels.length; ++i) {
        const card = levels[i].override ? levels[i].override : levels[i].name
        if (card && card.length === 2)
            board += card
    }
    return board
}

function absentSuits(boardText) {
    const board = compactBoard(boardText).toLowerCase()
    const present = {}
    for (let i = 1; i < board.length; i += 2)
        present[board.charAt(i)] = true
    return suitOrder.filter(suit => !present[suit])
}

// The action index of a clicked card, or of the same rank in another absent suit, which the solver treats alike.
function chanceCardIndex(card, indexByCard, boardText) {
    if (indexByCard[card] !== undefined)
        return indexByCard[card]
    const rank = card.charAt(0)
    const suit = card.charAt(1)
    const absent = absentSuits(boardText)
    if (absent.length < 2 || absent.indexOf(suit) < 0)
        return -1
    for (let i = 0; i < absent.length; ++i) {
        const twin = rank + absent[i]
        if (absent[i] !== suit && indexByCard[twin] !== undefined)
            return indexByCard[twin]
    }
    return -1
}
