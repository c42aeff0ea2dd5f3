// SPDX-License-Identifier: MIT
// The program's end inside one document. Runs in the program's own script world, where the page's scripts can
// neither see nor replace anything of it. Installed once a document; every call looks for it first.
//
// Nodes cross the border as numbers: 1 is the first node that was ever named, 0 is none. A node keeps its
// number as long as the document lives. Long lists of texts cross packed, as their lengths and one joined
// string, since the border charges by the piece.
(function () {
    'use strict';
    if (globalThis.quillmere)
        return;

    const id = Array.from(crypto.getRandomValues(new Uint32Array(3)), n => n.toString(36)).join('-');
    const nodes = [null];
    const numbers = new Map();

    function number(node) {
        if (!node)
            return 0;
        let known = numbers.get(node);
        if (known === undefined) {
            known = nodes.push(node) - 1;
            numbers.set(node, known);
        }
        return known;
    }

    function node(known) {
        const found = nodes[known];
        if (!found)
            throw new Error('no such node');
        return found;
    }

    function list(items) {
        const known = [];
        for (let i = 0, count = items.length; i < count; ++i)
            known.push(number(items[i]));
        return known.join(',');
    }

    function collect(items, property) {
        const values = [];
        for (let i = 0, count = items.length; i < count; ++i)
            values.push(property(items[i]));
        return values;
    }

    const pack = texts => [texts.map(text => text.length).join(','), texts.join('')];
    const text = value => (value === null || value === undefined ? '' : String(value));

    // SVG gives its addresses and class names as objects.
    const plain = value => text(value && value.baseVal !== undefined ? value.baseVal : value);

    const holdsValue = element => element.tagName === 'INPUT' || element.tagName === 'TEXTAREA';

    function fileName(address) {
        const path = address.split(/[?#]/)[0];
        return path.slice(path.lastIndexOf('/') + 1);
    }

    const readers = {
        InnerText: e => text(holdsValue(e) ? e.value : 'innerText' in e ? e.innerText : e.textContent),
        InnerHTML: e => text(e.innerHTML),
        OuterHTML: e => text(e.outerHTML),
        Id: e => text(e.id),
        Name: e => plain(e.name !== undefined ? e.name : e.getAttribute('name')),
        Value: e => plain(e.value !== undefined ? e.value : e.getAttribute('value')),
        Href: e => plain(e.href),
        HostName: e => text(e.hostname),
        NameProp: e => fileName(plain(e.src)),
        Src: e => plain(e.src),
        Alt: e => text(e.alt),
        Title: e => text(e.title),
        ClassName: e => plain(e.className),
        TagName: e => text(e.tagName).toLowerCase(),
        Type: e => text(e.type).toLowerCase(),
        Text: e => text(e.text)
    };

    function openingTag(element) {
        const shell = element.cloneNode(false).outerHTML;
        return shell.slice(0, shell.lastIndexOf('</'));
    }

    // Markup and lists come from the tree alone, so that they stand as long as nothing in the tree changes.
    // The text does not: styles decide what of it can be seen.
    let version = 0;
    let isTreeWatched = false;
    let lastAddress = '';
    const everyChange = {subtree: true, childList: true, attributes: true, characterData: true};
    const treeWatcher = new MutationObserver(() => forgetTree());

    function forgetTree() {
        treeWatcher.disconnect();
        isTreeWatched = false;
    }

    function treeVersion() {
        if (isTreeWatched && treeWatcher.takeRecords().length === 0 && lastAddress === location.href)
            return version;
        lastAddress = location.href;
        isTreeWatched = true;
        treeWatcher.observe(document, everyChange);
        return ++version;
    }

    // known: the version of the tree that the asker has already.
    function snapshot(known) {
        const body = document.body;
        const look = {
            url: location.href,
            version: treeVersion(),
            body: number(body),
            text: body ? text(body.innerText) : ''
        };
        if (look.version === known)
            return look;
        const links = document.links || [];
        const marked = document.querySelectorAll('[id]');
        look.bodyTag = body ? openingTag(body) : '';
        look.html = body ? body.innerHTML : '';
        look.links = list(links);
        look.hrefs = pack(collect(links, readers.Href));
        look.marked = list(marked);
        look.ids = pack(collect(marked, e => e.id));
        return look;
    }

    // Reads one property of many nodes until enough has come together; at least of the first.
    function read(wanted, property, budget) {
        const texts = [];
        let size = 0;
        for (const known of wanted) {
            const value = readers[property](node(known));
            texts.push(value);
            size += value.length + 16;
            if (size > budget)
                break;
        }
        return pack(texts);
    }

    // The numbers of each node's ancestors, nearest first, levels a node.
    function ancestors(wanted, levels) {
        const rows = [];
        for (const known of wanted) {
            let element = node(known);
            for (let i = 0; i < levels; ++i) {
                element = element && element.parentElement;
                rows.push(number(element));
            }
        }
        return rows.join(',');
    }

    const collections = {
        Links: () => document.links || [],
        Images: () => document.images || [],
        Scripts: () => document.scripts || [],
        ByTag: name => document.getElementsByTagName(name),
        ByName: name => document.getElementsByName(name)
    };

    function setInnerText(element, value) {
        if (holdsValue(element))
            element.value = value;
        else
            element.innerText = value;
    }

    function setAttribute(element, name, value) {
        switch (name.toLowerCase()) {
        case 'innertext':
            setInnerText(element, value);
            break;
        case 'innerhtml':
            element.innerHTML = value;
            break;
        case 'value':
            element.setAttribute('value', value);
            element.value = value;
            break;
        case 'classname':
            element.setAttribute('class', value);
            break;
        default:
            element.setAttribute(name, value);
        }
    }

    function click(element) {
        if (typeof element.click === 'function')
            element.click();
        else
            element.dispatchEvent(new MouseEvent('click', {bubbles: true, cancelable: true, view: window}));
    }

    function submit(element) {
        const form = element.tagName === 'FORM' ? element : element.form;
        if (!form)
            throw new Error('no form');
        // A form may hold an input that is called "submit" and hides the method.
        HTMLFormElement.prototype.submit.call(form);
    }

    const calls = {
        snapshot,
        read,
        ancestors,
        collect: (set, argument) => list(collections[set](argument)),
        attribute: (known, name) => text(node(known).getAttribute(name)),
        hasAttribute: (known, name) => node(known).hasAttribute(name),
        descendants: (known, tag) => list(node(known).getElementsByTagName(tag)),
        activeElement: () => number(document.activeElement),
        setInnerText: (known, value) => setInnerText(node(known), value),
        setInnerHTML: (known, value) => { node(known).innerHTML = value; },
        setValue: (known, value) => { node(known).value = value; },
        setAttribute: (known, name, value) => setAttribute(node(known), name, value),
        click: known => click(node(known)),
        submit: known => submit(node(known)),
        focus: known => node(known).focus(),
        scrollIntoView: known => node(known).scrollIntoView(),
        scrollToEnd: () => window.scrollTo(0, document.body ? document.body.scrollHeight : 0),
        // The page leaves as if it had decided so itself: the next page gets its address as referrer.
        leaveFor: address => location.assign(address)
    };

    // Whatever happens, the answer is an object: a bare null or a thrown error would look alike on the other
    // side. A call that was meant for another document does nothing here.
    function call(wanted, name, args) {
        if (wanted !== id)
            return {ok: false, document: id};
        try {
            const value = calls[name](...args);
            return {ok: true, document: id, value: value === undefined ? '' : value};
        } catch (error) {
            return {ok: false, document: id, error: String(error)};
        }
    }

    Object.defineProperty(globalThis, 'quillmere', {value: Object.freeze({id, call})});
})();
