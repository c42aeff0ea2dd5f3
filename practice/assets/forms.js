// SPDX-License-Identifier: MIT
// The scripts of the practice site's forms: the rich editor, the box that grows, and a page that asks before it
// is left.

// What a mail of its day could carry of a character that needs two units: its number.
function numbered(text) {
    return text.replace(/[\u{10000}-\u{10FFFF}]/gu, sign => '&#' + sign.codePointAt(0) + ';');
}

// An editable document knows no line ends, so a pasted one becomes markup.
function withBreaks(html, breaks) {
    const lines = html.split(/(?:<br>)?(?:\r\n|\r|\n)/);
    if (breaks === 'br')
        return lines.join('<br>');
    return lines[0] + lines.slice(1).map(line => '<div>' + (line || '<br>') + '</div>').join('');
}

function partsOf(editor) {
    return {
        frame: editor.querySelector('iframe'),
        source: editor.querySelector('.source'),
        open: editor.querySelector('.open'),
        field: editor.querySelector('.field')
    };
}

function switchSource(link) {
    const {frame, source, open} = partsOf(link.closest('.editor'));
    const page = frame.contentDocument.body;
    const opens = open.value === '0';
    if (opens)
        source.value = page.innerHTML;
    else
        page.innerHTML = source.value;
    open.value = opens ? '1' : '0';
    source.style.display = opens ? '' : 'none';
    frame.style.display = opens ? 'none' : '';
}

function openSource(link) {
    if (partsOf(link.closest('.editor')).open.value === '0')
        switchSource(link);
}

function collect(editor) {
    const {frame, source, open, field} = partsOf(editor);
    if (open && open.value === '1') {
        source.value = numbered(source.value);
        return;
    }
    const html = frame.contentDocument.body.innerHTML;
    if (html !== '' && html !== '<br>')
        field.value = numbered(withBreaks(html, editor.dataset.breaks));
}

let isSent = false;

document.addEventListener('submit', event => {
    isSent = true;
    for (const editor of event.target.querySelectorAll('.editor'))
        collect(editor);
});

// Asks whoever leaves the page in the middle of a text.
function readComposeMessagePage() {
    window.onbeforeunload = () => {
        const texts = Array.from(document.querySelectorAll('#composeForm textarea'));
        return !isSent && texts.some(text => text.value !== '') ? 'Your message has not been sent.' : undefined;
    };
}

// The span around the button sends, unless the button is still asleep: then the press only wakes it up.
let isSending = false;

function wakeButton() {
    setTimeout(() => { document.getElementById('butbtnSend').disabled = isSending; }, 800);
}

function pressSpan() {
    const button = document.getElementById('butbtnSend');
    if (button.disabled) {
        wakeButton();
        return;
    }
    isSending = true;
    button.disabled = true;
    setTimeout(() => document.getElementById('composeForm').requestSubmit(), 300);
}

// The box for a comment: it grows when it has the focus, its hint lies on it while it is empty, and some people
// take no markup. A text may be set without an event, so the box is looked at now and then.
function growBox() {
    const entry = document.getElementById('entry');
    const box = document.getElementById('newComment');
    if (document.activeElement === box)
        entry.classList.add('absolute');
    if (box.value === '')
        return;
    document.getElementById('hint').style.display = 'none';
    const note = document.getElementById('note');
    if (note.dataset.noHtml && /<[^>]*>/.test(box.value))
        note.textContent = 'HTML not allowed';
}

function pageAt(address, options) {
    return fetch(address, options)
        .then(answer => answer.text())
        .then(html => new DOMParser().parseFromString(html, 'text/html'));
}

// Puts boxes of another page in place of those here, or the whole page when it lacks the first.
function takeOver(page, ids) {
    if (!page.getElementById(ids[0])) {
        document.open();
        document.write('<!DOCTYPE html>' + page.documentElement.outerHTML);
        document.close();
        return;
    }
    for (const id of ids)
        document.getElementById(id).innerHTML = page.getElementById(id).innerHTML;
}

function postForm(form, ids) {
    const fields = new URLSearchParams(new FormData(form));
    return pageAt(form.action, {method: 'POST', body: fields}).then(page => takeOver(page, ids));
}

function postInPlace(button) {
    postForm(button.form, ['commentBox']);
}

// The stream of the home page and the box above it. One press is one post.
const statusBoxes = ['statusBox', 'streamBox'];

function shareInPlace(button) {
    button.disabled = true;
    postForm(button.form, statusBoxes);
}

function showStream(link) {
    const wait = new Promise(resolve => setTimeout(resolve, 800));
    document.getElementById('stream').classList.add('loadingIconWhiteLight');
    Promise.all([pageAt(link.href), wait]).then(([page]) => takeOver(page, ['streamBox']));
    return false;
}

// Asks before anything is deleted; the older layout sends the form, the newer one stays on its page.
function askDelete(link, number, isOlder) {
    const form = document.getElementById('deleteForm');
    document.getElementById('deleteNumber').value = number;
    document.getElementById('ask').innerHTML = document.getElementById('question').textContent;
    const yes = document.querySelector('#ask .yes');
    yes.onclick = () => isOlder ? form.submit() : postForm(form, statusBoxes);
    document.querySelector('#ask .no').onclick = () => { document.getElementById('ask').innerHTML = ''; };
}

window.addEventListener('load', () => {
    const entry = document.getElementById('entry');
    if (entry) {
        if (entry.dataset.grows)
            document.getElementById('newComment').focus({preventScroll: true});
        setInterval(growBox, 200);
    }
    const form = document.getElementById('commentForm');
    const commentbox = form && document.getElementById(form.dataset.focus);
    if (commentbox)
        commentbox.focus();
    const late = document.getElementById('late');
    if (late)
        setTimeout(() => { late.innerHTML = late.dataset.field; }, 2000);
    const lateList = document.getElementById('lateList');
    if (lateList)
        setTimeout(() => pageAt(lateList.dataset.from).then(page => {
            lateList.replaceWith(page.getElementById('posts'));
        }), 2000);
    const asleep = document.getElementById('asleep');
    if (asleep)
        setTimeout(() => { document.getElementById('confirmButton').disabled = false; }, 6000);
});
