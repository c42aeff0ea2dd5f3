// SPDX-License-Identifier: MIT
// The scripts of the pages on which friend requests are answered or taken back.

function requestForm() {
    return document.getElementById('requests');
}

function tickAll(box) {
    for (const other of requestForm().querySelectorAll('input[name=request]'))
        other.checked = box.checked;
}

const requestlist = {
    GoToPage(page) {
        location.href = requestForm().dataset.pages + page;
    },
    ProcessMultiAction(act) {
        if (!confirm('Are you sure?'))
            return;
        document.getElementById('multiAct').value = act;
        requestForm().submit();
    }
};

function __doPostBack(target, page) {
    requestlist.GoToPage(page || requestForm().dataset.last);
}

// One request alone: what the site says of it takes the place of its buttons.
function answerRequest(button, number, act) {
    const place = button.closest('.acts');
    const fields = new URLSearchParams({request: number, act: act, inPlace: '1'});
    button.disabled = true;
    fetch(requestForm().action, {method: 'POST', body: fields})
        .then(answer => answer.text())
        .then(html => {
            const page = new DOMParser().parseFromString(html, 'text/html');
            place.textContent = page.getElementById('said').textContent;
        });
}
