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

    // A page's named elements hide the properties of its document and of its forms; what stands on the prototypes
    // can't be hidden.
    const getter = (prototype, name) => {
        const get = Object.getOwnPropertyDescriptor(prototype, name).get;
        return object => get.call(object);
    };
    const method = (prototype, name) => {
        const run = prototype[name];
        return (object, ...args) => run.apply(object, args);
    };
    const bodyOf = getter(Document.prototype, 'body');
    const addressOf = getter(Document.prototype, 'URL');
    const viewOf = getter(Document.prototype, 'defaultView');
    const ownerOf = getter(Node.prototype, 'ownerDocument');
    const parentOf = getter(Node.prototype, 'parentElement');
    const tagOf = getter(Element.prototype, 'tagName');
    const idOf = getter(Element.prototype, 'id');
    const innerMarkup = getter(Element.prototype, 'innerHTML');
    const outerMarkup = getter(Element.prototype, 'outerHTML');
    const visibleText = getter(HTMLElement.prototype, 'innerText');
    const attribute = method(Element.prototype, 'getAttribute');
    const linksOf = getter(Document.prototype, 'links');
    const imagesOf = getter(Document.prototype, 'images');
    const scriptsOf = getter(Document.prototype, 'scripts');
    const byTag = method(Document.prototype, 'getElementsByTagName');
    const byName = method(Document.prototype, 'getElementsByName');
    const byId = method(Document.prototype, 'getElementById');
    const activeOf = getter(Document.prototype, 'activeElement');
    const hasAttribute = method(Element.prototype, 'hasAttribute');
    const descendants = method(Element.prototype, 'getElementsByTagName');
    const query = method(Document.prototype, 'querySelectorAll');
    const actionOf = getter(HTMLFormElement.prototype, 'action');
    const fires = method(EventTarget.prototype, 'dispatchEvent');
    const fits = method(Element.prototype, 'matches');
    // By tag, since an element of a frame has prototypes of its own. Elements that send forms or stand in them:
    // how each tells its form and an address of its own.
    const formOf = {
        INPUT: getter(HTMLInputElement.prototype, 'form'),
        BUTTON: getter(HTMLButtonElement.prototype, 'form'),
        TEXTAREA: getter(HTMLTextAreaElement.prototype, 'form'),
        SELECT: getter(HTMLSelectElement.prototype, 'form')
    };
    const formActionOf = {
        INPUT: getter(HTMLInputElement.prototype, 'formAction'),
        BUTTON: getter(HTMLButtonElement.prototype, 'formAction')
    };
    const contentOf = {
        IFRAME: getter(HTMLIFrameElement.prototype, 'contentDocument'),
        FRAME: getter(HTMLFrameElement.prototype, 'contentDocument')
    };

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
        // A frame's document may be gone while the page stands.
        if (!found || !viewOf(ownerOf(found) || found))
            throw new Error('no such node');
        return found;
    }

    // 0 is the page itself, any other number the document of a frame.
    const documentOf = known => (known === 0 ? document : node(known));

    function list(items) {
        const known = [];
        for (let i = 0, count = items.length; i < count; ++i)
            known.push(number(items[i]));
        return known.join(',');
    }

    const pack = texts => [texts.map(text => text.length).join(','), texts.join('')];
    const text = value => (value === null || value === undefined ? '' : String(value));

    // SVG gives its addresses and class names as objects.
    const plain = value => text(value && value.baseVal !== undefined ? value.baseVal : value);

    const holdsValue = element => tagOf(element) === 'INPUT' || tagOf(element) === 'TEXTAREA';

    function fileName(address) {
        const path = address.split(/[?#]/)[0];
        return path.slice(path.lastIndexOf('/') + 1);
    }

    function sentTo(element) {
        const tag = tagOf(element);
        const form = formOf[tag] && formOf[tag](element);
        if (!form)
            return '';
        return formActionOf[tag] && hasAttribute(element, 'formaction') ? formActionOf[tag](element)
                                                                       : actionOf(form);
    }

    const readers = {
        InnerText: e => text(holdsValue(e) ? e.value : 'innerText' in e ? visibleText(e) : e.textContent),
        InnerHTML: innerMarkup,
        OuterHTML: outerMarkup,
        Id: idOf,
        Name: e => plain(e.name !== undefined ? e.name : attribute(e, 'name')),
        Value: e => plain(e.value !== undefined ? e.value : attribute(e, 'value')),
        Href: e => plain(e.href),
        HostName: e => text(e.hostname),
        NameProp: e => fileName(plain(e.src)),
        Src: e => plain(e.src),
        Alt: e => text(e.alt),
        Title: e => text(e.title),
        ClassName: e => plain(e.className),
        TagName: e => tagOf(e).toLowerCase(),
        Type: e => text(e.type).toLowerCase(),
        Text: e => text(e.text),
        SentTo: sentTo
    };

    function openingTag(element) {
        const shell = element.cloneNode(false).outerHTML;
        return shell.slice(0, shell.lastIndexOf('</'));
    }

    // Markup, lists and the properties ofTree come from the tree and the page's address alone, so that they stand
    // as long as neither changes. The text does not: styles decide what of it can be seen.
    const ofTree = new Set(['Href', 'NameProp', 'Src', 'Name', 'Id']);
    const answered = new Map();
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
        answered.clear();
        return ++version;
    }

    const matches = {
        Contains: (value, wanted) => value.includes(wanted),
        Equals: (value, wanted) => value === wanted,
        EqualsTrimmed: (value, wanted) => value.trim() === wanted
    };

    function any([set, argument, property, match, wanted]) {
        const items = collections[set](argument);
        const read = readers[property];
        const fits = matches[match];
        for (let i = 0, count = items.length; i < count; ++i)
            if (fits(read(items[i]).toLowerCase(), wanted))
                return true;
        return false;
    }

    // For the version of the tree that stands.
    function answer(question) {
        if (!ofTree.has(question[2]))
            return any(question);
        const key = JSON.stringify(question);
        if (!answered.has(key))
            answered.set(key, any(question));
        return answered.get(key);
    }

    // Nobody reads a page to its end that is longer than this, and neither does the program: what it searches a
    // page for would hold up its window.
    const longest = 6 * 1024 * 1024;
    const shortened = value => (value.length > longest ? value.slice(0, longest) : value);

    // What every check of a page needs, and the answers to its questions. known: the version of the tree that the
    // asker has already.
    function look(known, questions) {
        const body = bodyOf(document);
        const seen = {
            url: location.href,
            version: treeVersion(),
            body: number(body),
            text: body ? shortened(visibleText(body)) : '',
            answers: questions.map(answer)
        };
        if (seen.version === known)
            return seen;
        seen.bodyTag = body ? openingTag(body) : '';
        seen.html = body ? shortened(innerMarkup(body)) : '';
        return seen;
    }

    // Numbers that follow one another are joined: "1-400,7,402-1000".
    function ranges(items) {
        const parts = [];
        let first = 0;
        let last = -1;
        const close = () => last >= first && parts.push(first === last ? String(first) : first + '-' + last);
        for (let i = 0, count = items.length; i < count; ++i) {
            const known = number(items[i]);
            if (known !== last + 1 || last < first) {
                close();
                first = known;
            }
            last = known;
        }
        close();
        return parts.join(',');
    }

    // The numbers of the body's elements in document order, which is the order in which its markup names them.
    // Elements with an id that stand outside of the body come by themselves.
    function places() {
        const body = bodyOf(document);
        const outside = query(document, '[id]:not(body, body *)');
        return {
            version: treeVersion(),
            nodes: body ? ranges(descendants(body, '*')) : '',
            outside: list(outside),
            outsideIds: pack(Array.from(outside, idOf))
        };
    }

    function ancestor(element, level) {
        for (; element && level > 0; --level)
            element = parentOf(element);
        return element;
    }

    // One property of all the elements of a collection, or of their ancestors a level up, each of these once.
    // Texts are read until enough has come together; at least the first.
    function reading([set, argument, property, level], budget) {
        const found = collections[set](argument);
        let items = found;
        if (level > 0)
            items = [...new Set(Array.from(found, element => ancestor(element, level)))].filter(Boolean);
        const nodes = ranges(items);
        return [nodes, property ? texts(items, property, budget) : pack([])];
    }

    // Everything that was foreseen, in one call.
    const rest = (readings, budget, wantsPlaces) => ({
        readings: readings.map(wanted => reading(wanted, budget)),
        places: wantsPlaces ? places() : null
    });

    function texts(items, property, budget) {
        const values = [];
        let size = 0;
        for (let i = 0, count = items.length; i < count && size <= budget; ++i) {
            const value = readers[property](items[i]);
            values.push(value);
            size += value.length + 16;
        }
        return pack(values);
    }

    // Reads one property of many nodes.
    const read = (wanted, property, budget) => texts(wanted.map(node), property, budget);

    // The numbers of each node's ancestors, nearest first, levels a node.
    function ancestors(wanted, levels) {
        const rows = [];
        for (const known of wanted) {
            let element = node(known);
            for (let i = 0; i < levels; ++i) {
                element = element && parentOf(element);
                rows.push(number(element));
            }
        }
        return rows.join(',');
    }

    const collections = {
        Links: (name, owner = document) => linksOf(owner),
        Images: (name, owner = document) => imagesOf(owner),
        Scripts: (name, owner = document) => scriptsOf(owner),
        ByTag: (name, owner = document) => byTag(owner, name),
        ByName: (name, owner = document) => byName(owner, name),
        ById: (name, owner = document) => [byId(owner, name)].filter(Boolean),
        Named: (name, owner = document) => [...new Set([...byName(owner, name), ...collections.ById(name, owner)])]
    };

    function frameDocument(element) {
        const content = contentOf[tagOf(element)];
        return number(content && content(element));
    }

    const states = {
        checked: element => element.checked === true,
        selected: element => element.selected === true,
        disabled: element => hasAttribute(element, 'disabled') || fits(element, ':disabled')
    };

    function setSelected(element, isSelected) {
        if (tagOf(element) !== 'OPTION')
            throw new Error('no option');
        element.selected = isSelected;
    }

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

    // What is done to one element of a collection; true when the rest of them are left alone.
    const writers = {
        Value: (element, value) => { element.value = value; },
        InnerText: setInnerText,
        FrameMarkup: (element, html) => {
            const content = contentOf[tagOf(element)];
            const body = content && content(element) && bodyOf(content(element));
            if (body)
                body.innerHTML = html;
            return Boolean(body);
        },
        PressInside: element => {
            const inside = descendants(element, '*')[0];
            if (inside)
                click(inside);
        }
    };

    function write([set, argument, kind, value]) {
        Array.from(collections[set](argument)).some(element => writers[kind](element, value));
    }

    function submit(element) {
        const form = tagOf(element) === 'FORM' ? element : element.form;
        if (!form)
            throw new Error('no form');
        // A form may hold an input that is called "submit" and hides the method.
        HTMLFormElement.prototype.submit.call(form);
    }

    // A page in a window without the desktop's focus is not told who has its own.
    function focus(element) {
        const owner = ownerOf(element);
        const before = activeOf(owner);
        let isTold = false;
        const hear = () => { isTold = true; };
        element.addEventListener('focus', hear, {once: true});
        element.focus();
        element.removeEventListener('focus', hear);
        if (isTold || activeOf(owner) !== element || before === element)
            return;
        fires(element, new FocusEvent('focus', {view: window}));
        fires(element, new FocusEvent('focusin', {bubbles: true, view: window}));
    }

    function fireChange(element) {
        fires(element, new Event('input', {bubbles: true}));
        fires(element, new Event('change', {bubbles: true}));
    }

    function scrollToEnd(owner) {
        const body = bodyOf(owner);
        viewOf(owner).scrollTo(0, body ? body.scrollHeight : 0);
    }

    const calls = {
        look,
        rest,
        read,
        ancestors,
        version: treeVersion,
        byId: (name, owner) => number(byId(documentOf(owner), name)),
        collect: (set, argument, owner) => list(collections[set](argument, documentOf(owner))),
        address: owner => addressOf(documentOf(owner)),
        body: owner => number(bodyOf(documentOf(owner))),
        frameDocument: known => frameDocument(node(known)),
        attribute: (known, name) => text(attribute(node(known), name)),
        state: (known, name) => states[name](node(known)),
        hasAttribute: (known, name) => hasAttribute(node(known), name),
        descendants: (known, tag) => list(descendants(node(known), tag)),
        activeElement: owner => number(activeOf(documentOf(owner))),
        write: (...writings) => writings.forEach(writing => write(writing)),
        setInnerText: (known, value) => setInnerText(node(known), value),
        setInnerHTML: (known, value) => { node(known).innerHTML = value; },
        setValue: (known, value) => { node(known).value = value; },
        setAttribute: (known, name, value) => setAttribute(node(known), name, value),
        setSelected: (known, isSelected) => setSelected(node(known), isSelected),
        click: known => click(node(known)),
        submit: known => submit(node(known)),
        focus: known => focus(node(known)),
        fireChange: known => fireChange(node(known)),
        scrollIntoView: known => node(known).scrollIntoView(),
        scrollToEnd: owner => scrollToEnd(documentOf(owner)),
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
