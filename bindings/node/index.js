// The package's entry. CommonJS, because every Node and Electron can require it and import it alike.
'use strict';

const { LumoraError } = require('./lib/error');
const { load } = require('./lib/library');
const { Overlay } = require('./lib/overlay');

module.exports = { LumoraError, Overlay, load };
