// SPDX-License-Identifier: MIT
// Tells the program what happens in a document, the top one or a frame of it. The secret marks a message as
// the program's own; the page's scripts have no way to it.
(function (secret) {
    'use strict';
    if (globalThis.quillmereWatches)
        return;
    Object.defineProperty(globalThis, 'quillmereWatches', {value: true});

    const isTop = window === window.top;
    const own = isTop && globalThis.quillmere ? globalThis.quillmere.id : '';
    const message = (kind, more) => secret + JSON.stringify([kind, own, location.href].concat(more || []));
    // A page's named elements hide the properties of its document, but not those of the prototype.
    const bodyOf = Object.getOwnPropertyDescriptor(Document.prototype, 'body').get;
    const tell = kind => console.log(message(kind));

    // A page that holds nothing may stand for an error; the answer's status will tell.
    function tellCompletion() {
        const body = bodyOf.call(document);
        const isEmpty = body && !body.hasChildNodes();
        tell(!isTop ? 'frameComplete' : isEmpty ? 'completeEmpty' : 'complete');
    }

    if (isTop)
        tell('arrived');
    if (document.readyState === 'complete')
        tellCompletion();
    else
        window.addEventListener('load', tellCompletion);

    if (!isTop)
        return;

    // Every form that is sent, by a click, by Enter or by a script, collects its fields first. The page waits
    // here until the program has them, so that they are never later than the navigation that follows.
    const describe = input => [input.id, input.name, input.value, input.type];
    const methodOf = Object.getOwnPropertyDescriptor(HTMLFormElement.prototype, 'method').get;
    const textOf = Object.getOwnPropertyDescriptor(HTMLElement.prototype, 'innerText').get;
    // As much as is read of any page.
    const longest = 6 * 1024 * 1024;
    window.addEventListener('formdata', event => {
        const inputs = Array.from(Document.prototype.getElementsByTagName.call(document, 'input'), describe);
        const body = bodyOf.call(document);
        const text = body ? textOf.call(body).slice(0, longest) : '';
        prompt(message('inputs', [methodOf.call(event.target), text].concat(inputs)));
    }, true);
})
