// The arithmetic of play against the solution: weighted picks, the mistake test and the facts of a finished
// hand. Pure functions, so the page's flow stays readable and each rule can be tried on its own.
.pragma library

const stepSeparator = " → "
const foldWord = "Fold"
const chanceActor = "Chance"
const cardTextLength = 2
const flopTextLength = 6
const turnTextLength = 8
const riverTextLength = 10
const relativeScaleFloor = 1e-9
const ranks = "23456789TJQKA"
const suits = "shdc"

function cardKey(card) {
    const text = String(card === undefined || card === null ? "" : card).trim()
    return text.length === cardTextLength ? text.charAt(0).toUpperCase() + text.charAt(1).toLowerCase() : ""
}

function isValidCard(card) {
    const key = cardKey(card)
    return key !== "" && ranks.indexOf(key.charAt(0)) >= 0 && suits.indexOf(key.charAt(1)) >= 0
}

function boardCards(text) {
    const board = String(text).replace(/\s+/g, "")
    const cards = []
    for (let i = 0; i + 1 < board.length; i += cardTextLength)
        cards.push(cardKey(board.substr(i, cardTextLength)))
    return cards
}

// used: an object whose keys are card keys.
function markUsed(used, cards) {
    for (let i = 0; i < cards.length; ++i)
        if (isValidCard(cards[i]))
            used[cardKey(cards[i])] = true
    return used
}

// Draws one index in proportion to the weights; the last candidate takes what rounding leaves over.
function pickByWeight(candidates, weightOf, random) {
    if (candidates.length === 0)
        return -1
    let total = 0
    for (let i = 0; i < candidates.length; ++i)
        total += weightOf(candidates[i])
    let r = random * total
    for (let i = 0; i < candidates.length; ++i) {
        r -= weightOf(candidates[i])
        if (r <= 0)
            return candidates[i]
    }
    return candidates[candidates.length - 1]
}

function isUsedCardName(name, used) {
    const text = String(name)
    return text.length === cardTextLength && used[cardKey(text)] === true
}

function pickWeightedActionIndex(actions, used, random) {
    const candidates = []
    for (let i = 0; actions && i < actions.length; ++i) {
        const frequency = Number(actions[i].frequency)
        if (frequency > 0 && !(used && isUsedCardName(actions[i].name, used)))
            candidates.push(i)
    }
    return pickByWeight(candidates, i => Number(actions[i].frequency), random)
}

function isEligibleCombo(combo, used) {
    const c1 = cardKey(combo.c1)
    const c2 = cardKey(combo.c2)
    const weight = Number(combo.weight)
    return isValidCard(c1) && isValidCard(c2) && c1 !== c2 && !used[c1] && !used[c2] && isFinite(weight)
            && weight > 0
}

// The picked combo as [c1, c2], or [] when none is eligible.
function pickCombo(combos, used, random) {
    const candidates = []
    for (let i = 0; combos && i < combos.length; ++i)
        if (isEligibleCombo(combos[i], used))
            candidates.push(i)
    const index = pickByWeight(candidates, i => Number(combos[i].weight), random)
    return index < 0 ? [] : [cardKey(combos[index].c1), cardKey(combos[index].c2)]
}

function unknownEvInfo() {
    return {ok: false, chosenEv: NaN, bestEv: NaN, evLoss: NaN, bestIndex: -1}
}

// The first maximum over the finite EVs; a source serves only when the chosen action's EV is finite.
function evInfo(evs, chosen) {
    if (!evs || chosen < 0 || chosen >= evs.length || !isFinite(Number(evs[chosen])))
        return unknownEvInfo()
    let bestIndex = -1
    for (let i = 0; i < evs.length; ++i) {
        const ev = Number(evs[i])
        if (isFinite(ev) && (bestIndex < 0 || ev > Number(evs[bestIndex])))
            bestIndex = i
    }
    const chosenEv = Number(evs[chosen])
    const bestEv = Number(evs[bestIndex])
    return {ok: true, chosenEv: chosenEv, bestEv: bestEv, evLoss: bestEv - chosenEv, bestIndex: bestIndex}
}

// The relative term keeps near-ties of a solution that has not fully converged from counting as mistakes.
function mistakeTolerance(info, epsilon, relativeTol) {
    const scale = Math.max(Math.abs(info.bestEv), Math.abs(info.chosenEv), relativeScaleFloor)
    return Math.max(Math.max(0, epsilon), relativeTol * scale)
}

function isMistake(info, epsilon, relativeTol) {
    return info.ok && isFinite(info.evLoss) && info.evLoss > mistakeTolerance(info, epsilon, relativeTol)
}

function splitLine(line) {
    return line ? String(line).split(stepSeparator) : []
}

function stepActor(step) {
    const colon = step.indexOf(":")
    return colon < 0 ? "" : step.substring(0, colon)
}

function otherSeat(seat) {
    return seat === "OOP" ? "IP" : "OOP"
}

// Steps listed by street; a chance step moves on a street and is not listed itself.
function actionsByStreet(line, firstStreet) {
    const streets = [[], [], []]
    let street = firstStreet
    const steps = splitLine(line)
    for (let i = 0; i < steps.length; ++i) {
        if (stepActor(steps[i]) === chanceActor)
            street = Math.min(street + 1, streets.length - 1)
        else
            streets[street].push(steps[i])
    }
    return streets
}

function foldWinner(line) {
    const steps = splitLine(line)
    for (let i = steps.length - 1; i >= 0; --i)
        if (steps[i].indexOf(foldWord) >= 0)
            return otherSeat(stepActor(steps[i]))
    return ""
}

// showdown(board, oop, ip) answers "OOP", "IP", "TIE" or anything else for unknown.
function handWinner(entry, showdown) {
    const folded = foldWinner(entry.line)
    if (folded !== "")
        return folded
    const board = String(entry.board)
    if (board.length < riverTextLength || String(entry.oop).length !== 2 * cardTextLength
            || String(entry.ip).length !== 2 * cardTextLength)
        return ""
    const winner = showdown(board, entry.oop, entry.ip)
    return winner === "OOP" || winner === "IP" || winner === "TIE" ? winner : ""
}

function wonAmount(entry, winner) {
    if (winner === "TIE")
        return 0
    if (winner === "")
        return NaN
    return Number(entry.pot) - Number(winner === "OOP" ? entry.investedOop : entry.investedIp)
}

function rakeTaken(pot, percent, cap) {
    if (!(pot > 0) || !(percent > 0))
        return 0
    const rake = pot * percent / 100
    return cap > 0 ? Math.min(rake, cap) : rake
}

// The street the solved board starts on: 0 flop, 1 turn, 2 river.
function firstStreet(solvedBoard) {
    return Math.max(0, Math.min(2, boardCards(solvedBoard).length - 3))
}

function handFacts(entry, solvedBoard, showdown, rakePercent, rakeCap) {
    const board = String(entry.board)
    const streets = actionsByStreet(entry.line, firstStreet(solvedBoard))
    const winner = handWinner(entry, showdown)
    return {
        flopBoard: board.substr(0, flopTextLength),
        turnCard: board.substr(flopTextLength, cardTextLength),
        riverCard: board.substr(turnTextLength, cardTextLength),
        flopActions: streets[0],
        turnActions: streets[1],
        riverActions: streets[2],
        oop: String(entry.oop),
        ip: String(entry.ip),
        winner: winner,
        wonAmount: wonAmount(entry, winner),
        rakeTaken: rakeTaken(Number(entry.pot), rakePercent, rakeCap)
    }
}
