// A control for every field of the record, with its default marked, and the C code that sets what differs.

const fieldTexts = {
    inkColor: { group: 'Ink', kind: 'colour', text: 'Colour, 0x00BBGGRR' },
    inkDecayTime: { group: 'Ink', most: 5000, step: 10, text: 'Ink life in milliseconds' },
    line: { group: 'Ink', kind: 'flag', text: 'Draw strokes' },
    outline: { group: 'Ink', kind: 'flag', text: 'Border in the contrast colour; without line: hollow strokes' },
    zebraMode: { group: 'Ink', kind: 'flag', text: 'Stripes, each 10 ms of age long' },
    brushSize: { group: 'Width', most: 100, text: 'Full width in pixels' },
    minBrushSize: { group: 'Width', most: 100, text: 'Smallest width that pressure may give' },
    usePressure: { group: 'Width', kind: 'flag', text: 'Width follows pressure' },
    maxPressure: { group: 'Width', most: 65534, text: 'Pressure of the full width; this page\'s pen reports 0 to 32767' },
    cursor: { group: 'Pen', kind: 'flag', text: 'Cross-hair at a hovering pen' },
    useOffset: { group: 'Pen', kind: 'flag', text: 'Strokes 50 pixels above the pen' },
    colorPicker: { group: 'Pen', kind: 'flag', text: 'The next touch takes the colour below it' },
    reserved0: { group: 'Your own', most: 100, text: 'Carried unchanged, means nothing' },
    reserved31: { group: 'Your own', most: 255, highest: 255, text: 'Carried unchanged, means nothing' },
};

const cColour = (value) => `0x${value.toString(16).toUpperCase().padStart(8, '0')}`;
const showValue = (name, value) => (fieldTexts[name].kind === 'colour' ? cColour(value) : String(value));

// Red is the lowest byte in the record and the first of a page's colour.
const swapEnds = (value) => ((value & 0xff) << 16) | (value & 0xff00) | ((value >> 16) & 0xff);
const pageColour = (value) => `#${swapEnds(value).toString(16).padStart(6, '0')}`;

function makeElement(tag, properties = {}, ...children) {
    const element = Object.assign(document.createElement(tag), properties);
    element.append(...children);
    return element;
}

class Controls {
    // `changed` is called with the record after each change by the visitor.
    constructor(parent, defaults, changed) {
        this.defaults = defaults;
        this.record = { ...defaults };
        this.changed = changed;
        this.rows = {};
        for (const group of ['Ink', 'Width', 'Pen', 'Your own']) {
            const names = Object.keys(fieldTexts).filter((name) => fieldTexts[name].group === group);
            parent.append(makeElement('fieldset', {}, makeElement('legend', { textContent: group }),
                ...names.map((name) => this.makeRow(name))));
        }
    }

    makeRow(name) {
        const { kind, text } = fieldTexts[name];
        const inputs = this.makeInputs(name);
        inputs[0].id = `field-${name}`;
        const label = makeElement('label', { htmlFor: inputs[0].id }, makeElement('code', { textContent: name }));
        const reset = makeElement('button', {
            type: 'button', className: 'default', textContent: `default ${showValue(name, this.defaults[name])}`,
            title: `Set ${name} to its default`,
        });
        reset.addEventListener('click', () => this.set(name, this.defaults[name]));
        const hint = makeElement('p', { textContent: text });
        const row = makeElement('div', { className: 'field' }, label, reset, ...inputs.map((input) =>
            (input.type === 'range' ? this.withMark(name, input) : input)), hint);
        this.rows[name] = { row, inputs };
        return row;
    }

    makeInputs(name) {
        const { kind, most, step = 1, highest = 0xffffffff } = fieldTexts[name];
        if (kind === 'flag') {
            const box = makeElement('input', { type: 'checkbox' });
            box.addEventListener('change', () => this.set(name, box.checked ? 1 : 0));
            return [box];
        }
        if (kind === 'colour') {
            const colour = makeElement('input', { type: 'color' });
            colour.addEventListener('input', () => this.set(name, swapEnds(parseInt(colour.value.slice(1), 16))));
            return [colour];
        }
        const number = makeElement('input', { type: 'number', min: 0, max: highest, step: 1 });
        number.addEventListener('input', () => {
            if (number.value !== '' && number.checkValidity()) {
                this.set(name, number.valueAsNumber);
            }
        });
        const slider = makeElement('input', { type: 'range', min: 0, max: most, step, ariaLabel: name });
        slider.addEventListener('input', () => this.set(name, slider.valueAsNumber));
        return [number, slider];
    }

    // A line on the slider where its default is.
    withMark(name, slider) {
        const mark = makeElement('span', { className: 'mark' });
        mark.style.setProperty('--share', this.defaults[name] / fieldTexts[name].most);
        return makeElement('div', { className: 'slider' }, slider, mark);
    }

    set(name, value) {
        this.record[name] = value;
        this.show();
        this.changed(this.record);
    }

    setAll(record) {
        this.record = { ...record };
        this.show();
        this.changed(this.record);
    }

    show() {
        for (const [name, { row, inputs }] of Object.entries(this.rows)) {
            const value = this.record[name];
            row.classList.toggle('changed', value !== this.defaults[name]);
            for (const input of inputs) {
                if (input.type === 'checkbox') {
                    input.checked = value !== 0;
                } else if (input.type === 'color') {
                    input.value = pageColour(value);
                } else if (input.valueAsNumber !== value) {
                    input.value = value;
                }
            }
        }
    }
}

// What a host writes to come from the defaults to this record.
function codeInC(record, defaults) {
    const lines = Object.keys(record)
        .filter((name) => record[name] !== defaults[name])
        .map((name) => `params.${name} = ${showValue(name, record[name])};`);
    return ['LM_Params params;', 'LM_GetCopiedParams(&params);', ...lines, 'LM_SetParams(&params);'].join('\n');
}
