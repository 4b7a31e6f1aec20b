// Rows of a list view that follow the length of a script list. They grow and shrink at the end only, so that a
// view keeps every delegate it can and refills it in place: a new model, even a new count, rebuilds them all.
.pragma library

function resize(model, count) {
    if (model.count > count) {
        model.remove(count, model.count - count)
        return
    }
    const added = []
    for (let i = model.count; i < count; ++i)
        added.push({})
    if (added.length > 0)
        model.append(added)
}

// The entry that a row shows, or `empty` for a row that is on its way out: past the end of a list that has just
// shrunk, or released with the index -1.
function entryAt(list, index, empty) {
    return list && index >= 0 && index < list.length ? list[index] : empty
}
