// A small house from an empty start, by tools alone: addresses, logic, recordings, then the controller.
import assert from 'node:assert/strict';

const address = (main, middle, sub) => ({ main, middle, sub });
const wall = address(1, 1, 1);
const dark = address(1, 2, 1);
const lamp = address(1, 3, 1);
const bell = address(1, 4, 1);
const temperature = address(3, 1, 1);

const esf = [
  'Kleines Haus',
  "Licht.Taster.1/1/1\tTaster Flur\tEIS 1 'Switching' (1 Bit)\tLow\t",
  "Licht.Taster.1/1/2\tTaster Küche\tEIS 1 'Switching' (1 Bit)\tLow\t",
  "Licht.Taster.1/1/3\tTaster Wohnen\tEIS 1 'Switching' (1 Bit)\tLow\t",
  "Licht.Melder.1/2/1\tEs ist dunkel\tEIS 1 'Switching' (1 Bit)\tLow\t",
  "Licht.Lampen.1/3/1\tLampe Flur\tEIS 1 'Switching' (1 Bit)\tLow\t",
  "Licht.Lampen.1/3/2\tLampe Küche\tEIS 1 'Switching' (1 Bit)\tLow\t",
  "Licht.Lampen.1/3/3\tLampe Wohnen\tEIS 1 'Switching' (1 Bit)\tLow\t",
  "Jalousie.Süd.2/1/1\tJalousie auf/ab\tEIS 7 'Drive Control' (1 Bit)\tLow\t",
  "Jalousie.Süd.2/1/2\tJalousie Stopp\tEIS 7 'Drive Control' (1 Bit)\tLow\t",
  "Heizung.Ist.3/1/1\tTemperatur Wohnen\tEIS 5 'Value' (2 Byte)\tLow\t",
  "Heizung.Ist.3/1/2\tTemperatur Bad\tEIS 5 'Value' (2 Byte)\tLow\t",
  "Heizung.Soll.3/2/1\tSollwert Wohnen\tEIS 5 'Value' (2 Byte)\tLow\t",
].join('\n');

const script = 'function onInputChanged()\n  sys_set_value("A1", sys_get_value("E1"), false)\nend\n';

async function begin(assistant, studio, name) {
  const made = await assistant.call('new_project', {
    filename: studio.projectPath(name),
    fb_page_caption: 'Erdgeschoss',
    connection_ip: studio.controller,
    connection_name: 'Stellvertreter',
  });
  assert.equal(made.fb_pages[0].caption, 'Erdgeschoss');
  const { connections } = await assistant.call('list_connections');
  assert.deepEqual(connections.map((one) => one.ip), [studio.controller]);
  return made.fb_pages[0].guid;
}

async function addresses(assistant) {
  await assistant.call('import_knx_addresses', { file_content: esf, format: 'esf' });
  await assistant.call('create_address', { ...bell, comment: 'Klingel', data_type: 1001 });
  assert.match(await assistant.failure('create_address', { ...bell, comment: 'noch eine' }), /1\/4\/1/);
  const found = await assistant.call('list_addresses', { filter: 'Küche' });
  assert.match(JSON.stringify(found), /Taster Küche.*Lampe Küche/);
  assert.doesNotMatch(JSON.stringify(found), /Flur/);
}

/** The type's number, by its name: an assistant knows no numbers. */
async function typeOf(assistant, name) {
  const { types } = await assistant.call('list_fb_types');
  const type = types.find((one) => one.type_name === name);
  assert.ok(type, `${name} is not among ${types.length} types`);
  return type.type;
}

async function stairLight(assistant, page) {
  const block = async (name, x) => {
    const made = { page_guid: page, type: await typeOf(assistant, name), x, y: 64 };
    return (await assistant.call('add_function_block', made)).guid;
  };
  const and = await block('Und', 64);
  const timer = await block('Treppenhausverzögerung', 320);
  await assistant.call('connect_fb_io', {
    source_fb_guid: and, source_output_index: 0, target_fb_guid: timer, target_input_index: 0,
  });
  await assistant.call('assign_fb_io_addresses_batch', {
    fb_guid: and, assignments: [{ io_type: 0, io_index: 0, ...wall }, { io_type: 0, io_index: 1, ...dark }],
  });
  await assistant.call('assign_fb_io_address', { fb_guid: timer, io_type: 1, io_index: 0, ...lamp });
  await assistant.call('update_fb', { guid: timer, comment: 'Licht im Flur', x: 336 });

  const { inputs } = await assistant.call('get_fb_detail', { guid: and });
  assert.deepEqual(inputs.slice(0, 2).map((pin) => pin.binding.address), ['1/1/1', '1/2/1']);
  const { connections } = await assistant.call('list_fb_connections', { page_guid: page });
  assert.ok(connections.length > 0);
  const error = await assistant.failure('connect_fb_io', {
    source_fb_guid: and, source_output_index: 7, target_fb_guid: timer, target_input_index: 0,
  });
  assert.equal(error, 'Ausgangs-Index ausserhalb des gueltigen Bereichs: 7');
  return [and, timer];
}

async function doorBell(assistant) {
  const page = await assistant.call('add_fb_page', { caption: 'Klingel' });
  const lua = await assistant.call('add_function_block', { page_guid: page.guid, type: 900, x: 64, y: 64 });
  await assistant.call('set_lua_script', { fb_guid: lua.guid, code: script, inputs: 2, outputs: 1 });
  await assistant.call('assign_fb_io_address', { fb_guid: lua.guid, io_type: 0, io_index: 0, ...bell });
  const { parameters, inputs, outputs } = await assistant.call('get_fb_detail', { guid: lua.guid });
  assert.equal(parameters[0].value, script);
  assert.deepEqual([inputs.length, outputs.length], [2, 1]);
}

async function records(assistant) {
  await assistant.call('add_statistic_recording', {
    address: '3/1/1', name: 'Wohnen', trigger_type: 'change', trigger_value: 0.5,
  });
  const { recordings } = await assistant.call('get_statistic_recordings');
  assert.deepEqual(recordings.map((one) => [one.name, one.address]), [['Wohnen', '3/1/1']]);
}

async function readsHelp(assistant, block) {
  const { program } = await assistant.call('list_help_topics');
  assert.ok(program.some((topic) => topic.topic === 'program/fb_lua_script'));
  const help = await assistant.call('get_help', { fb_guid: block });
  assert.match(JSON.stringify(help), /Treppenhaus/);
  assert.match(JSON.stringify(await assistant.call('get_lua_api_reference')), /sys_set_value.*onInputChanged|onInputChanged.*sys_set_value/);
}

async function toTheController(assistant) {
  const error = await assistant.failure('write_project_to_controller');
  assert.equal(error, 'Keine Verbindung zur Steuerung');
  assert.equal((await assistant.call('connect_runtime', { timeout_seconds: 20 })).connected, true);
  assert.equal((await assistant.call('connect_runtime')).already_connected, true);
  const written = await assistant.call('write_project_to_controller');
  assert.ok(written.project_generation > 0);
  assert.match(written.hint, /^Die Steuerung schreibt das Projekt und startet ihre Dienste neu/);
}

/** Waits as long as the controller starts anew. */
async function reconnect(assistant) {
  for (let attempt = 0; attempt < 20; attempt += 1) {
    const info = await assistant.call('get_play_mode');
    if (info.connected) {
      return;
    }
    await assistant.call('connect_runtime', { timeout_seconds: 5 });
  }
  assert.fail('the controller does not come back');
}

async function values(assistant) {
  await assistant.call('get_controller_status', { timeout_seconds: 5 });
  for (const [place, value] of [[lamp, 1], [temperature, 21.5]]) {
    await assistant.call('set_address_value', { ...place, value });
    assert.equal((await assistant.call('get_address_value', place)).value, value);
  }
  // Forgotten with the link, they can only come from the controller again.
  assert.equal((await assistant.call('connect_runtime', { connect: false })).was_connected, true);
  assert.equal((await assistant.call('connect_runtime')).connected, true);
  let read = {};
  for (let attempt = 0; attempt < 50 && read.value !== 21.5; attempt += 1) {
    read = await assistant.call('get_address_value', temperature);
  }
  assert.equal(read.value, 21.5, JSON.stringify(read));
}

async function play(assistant) {
  await assistant.call('set_play_mode', { enabled: true });
  assert.equal((await assistant.call('get_play_mode')).enabled, true);
  assert.equal(await assistant.failure('add_fb_page', { caption: 'nie' }),
    'Nur möglich wenn Bedienmodus ausgeschaltet ist.');
  await assistant.call('set_play_mode', { enabled: false });
  assert.equal((await assistant.call('get_play_mode')).enabled, false);
  assert.equal((await assistant.call('connect_runtime', { connect: false })).connected, false);
}

/** What reading tools tell of the project; what differs between two openings is left out. */
async function everything(assistant) {
  const { pages } = await assistant.call('list_fb_pages', { include_summary: true });
  const told = { pages };
  for (const tool of ['list_addresses', 'get_statistic_recordings', 'list_connections', 'get_controller_list']) {
    told[tool] = await assistant.call(tool);
  }
  for (const page of pages) {
    told[page.guid] = await assistant.call('get_fb_page', { guid: page.guid });
  }
  return told;
}

/** The file holds what the tools have told. */
async function isInTheFile(assistant, studio, name) {
  const before = await everything(assistant);
  assert.deepEqual(before.pages.map((page) => [page.caption, page.block_count]), [['Erdgeschoss', 2], ['Klingel', 1]]);
  await assistant.call('save_project');
  await assistant.call('new_project', { filename: studio.projectPath(`Leer ${name}`), connection_ip: studio.controller });
  await assistant.call('open_project', { filename: studio.projectPath(name) });
  assert.deepEqual(await everything(assistant), before);
}

export async function buildSmallHouse(assistant, studio, name) {
  const page = await begin(assistant, studio, name);
  await addresses(assistant);
  const [, timer] = await stairLight(assistant, page);
  await doorBell(assistant);
  await records(assistant);
  await readsHelp(assistant, timer);
  await assistant.call('ui_navigate', { page_guid: page });
  await assistant.call('save_project');
  await toTheController(assistant);
  await reconnect(assistant);
  await values(assistant);
  await play(assistant);
  await isInTheFile(assistant, studio, name);
}
