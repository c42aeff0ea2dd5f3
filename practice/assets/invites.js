// SPDX-License-Identifier: MIT
// The scripts of the pages on which friends are invited.

function inviteForm() {
    return document.getElementById('inviteForm');
}

// Another page of the list. What is ticked goes along.
function __doPostBack(target, page) {
    document.getElementById('page').value = page;
    inviteForm().submit();
}

function tickAll(box) {
    for (const other of inviteForm().querySelectorAll('input[name=friend]'))
        other.checked = box.checked;
}

// Takes what is chosen in one list over into the other.
function move(from, to) {
    for (const option of Array.from(from.selectedOptions)) {
        const moved = to.ownerDocument.createElement('option');
        moved.value = option.value;
        moved.text = option.text;
        to.add(moved);
    }
}

// All that stands in the list is sent, chosen or not.
function sendAll(list) {
    for (const option of list.options)
        option.selected = true;
    return true;
}

// Somebody in a list of guests: chosen by a click, and let go by another one.
function pick(id, mark, chosen) {
    const element = document.getElementById(mark);
    const field = document.querySelector('#picks input[value="' + id + '"]');
    element.className = field ? 'unchecked' : chosen;
    if (field) {
        field.remove();
        return;
    }
    const added = document.createElement('input');
    added.type = 'hidden';
    added.name = 'friend';
    added.value = id;
    document.getElementById('picks').append(added);
}

const Events = {Pager: {AjaxPagerPrimary: {getNewPagingData: page => __doPostBack('guests', page)}}};

// Somebody who stands in no list of the page.
function addOption(value, text) {
    const added = document.createElement('option');
    added.value = value;
    added.text = text;
    document.getElementById('invitedfriends').add(added);
}
